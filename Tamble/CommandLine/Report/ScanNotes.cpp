#include <Tamble/CommandLine/Report/ScanNotes.h>
#include <Tamble/CommandLine/Text/Amounts.h>

#include <fmt/format.h>

namespace tamble {

std::vector<std::string> scanNotes(const ScanResult& scan) {
    std::vector<std::string> notes;
    if (scan.unreadableCount > 0)
        notes.push_back(fmt::format("{} items couldn't be read.", scan.unreadableCount));
    if (scan.skippedLinkCount > 0) notes.emplace_back("Shortcuts to other folders aren't followed.");
    if (scan.skippedPackageCount > 0) notes.emplace_back("App packages and photo libraries aren't opened.");
    return notes;
}

std::string nothingFoundSentence(const ScanResult& scan) {
    if (scan.otherFileCount > 0) {
        return fmt::format("None of {} is of a kind that this tool works with.",
                           countText(scan.otherFileCount, "file", "files"));
    }
    return "The folder you chose is empty or couldn't be read.";
}

}  // namespace tamble
