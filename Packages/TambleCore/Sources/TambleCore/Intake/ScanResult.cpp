#include <TambleCore/Intake/ScanResult.h>

#include <fmt/format.h>

namespace tamble {

int FolderNode::totalFileCount() const {
    int total = fileCount;
    for (const auto& child : children) total += child.totalFileCount();
    return total;
}

std::vector<std::string> scanNotes(const ScanResult& result) {
    std::vector<std::string> notes;
    if (result.unreadableCount > 0) {
        notes.push_back(fmt::format("{} items couldn't be read.", result.unreadableCount));
    }
    if (result.skippedLinkCount > 0) notes.emplace_back("Shortcuts to other folders aren't followed.");
    if (result.skippedPackageCount > 0) notes.emplace_back("App packages and photo libraries aren't opened.");
    if (result.emptyFolderCount > 0) {
        notes.emplace_back("The folder you chose is empty or couldn't be read.");
    }
    return notes;
}

}  // namespace tamble
