#include <TambleCore/Jobs/Renaming/PlannedRename.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Support/PathKey.h>
#include <TambleCore/Support/UUID.h>

#include <unordered_set>
#include <utility>

namespace tamble {
namespace {

FilePath hiddenBeside(const FilePath& file, std::string_view prefix) {
    const std::string& path = file.native();
    return path.substr(0, path.rfind('/') + 1).append(prefix).append(newUUID());
}

}  // namespace

std::vector<PlannedRename> plannedRenames(std::span<const RenamedItem> items, std::string_view parkedPrefix) {
    std::vector<std::string> oldNames, newNames;
    for (const RenamedItem& item : items) {
        oldNames.push_back(pathKey(item.from));
        newNames.push_back(pathKey(item.to));
    }
    const std::unordered_set<std::string_view> allOld(oldNames.begin(), oldNames.end());
    const std::unordered_set<std::string_view> allNew(newNames.begin(), newNames.end());
    std::vector<PlannedRename> renames;
    renames.reserve(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const RenamedItem& item = items[i];
        PlannedRename rename{.from = item.from, .to = item.to, .inode = inodeOf(item.from).value_or(0)};
        if (allOld.contains(newNames[i]) || allNew.contains(oldNames[i])) {
            rename.parked = hiddenBeside(item.from, parkedPrefix);
        }
        renames.push_back(std::move(rename));
    }
    return renames;
}

std::vector<PlannedRename> reversed(std::vector<PlannedRename> renames) {
    for (PlannedRename& rename : renames) std::swap(rename.from, rename.to);
    return renames;
}

}  // namespace tamble
