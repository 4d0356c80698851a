#include <TambleCore/Jobs/FolderContents.h>
#include <TambleCore/Rename/NewName.h>
#include <TambleCore/Rename/RenamePlanner.h>
#include <TambleCore/Support/NameFitting.h>
#include <TambleCore/Support/PathKey.h>

#include <memory>
#include <unordered_map>
#include <unordered_set>

namespace tamble::RenamePlanner {
namespace {

using Counts = std::unordered_map<std::string, int>;

std::unordered_set<std::string> placesOf(std::span<const InputFile> files) {
    std::unordered_set<std::string> places;
    for (const InputFile& file : files) places.insert(standardized(file.url).native());
    return places;
}

}  // namespace

std::vector<RenameItem> plan(std::span<const InputFile> files, const RenamePattern& pattern, RenameWay way,
                             const ExistsTest& exists) {
    std::vector<RenameItem> items;
    items.reserve(files.size());
    std::vector<std::string> keys;
    Counts wanted;
    for (const InputFile& file : files) {
        const std::string& path = file.url.native();
        const NewName name = NewName::of(path.substr(path.rfind('/') + 1), items.size(), pattern);
        RenameItem& item = items.emplace_back(RenameItem{.file = file, .newName = name.whole()});
        if (name.isEmpty()) item.problem = RenameItem::Problem::empty;
        keys.push_back(pathKey(renamedPath(item)));
        ++wanted[keys.back()];
    }
    const auto freed = way == RenameWay::inPlace ? placesOf(files) : std::unordered_set<std::string>();
    for (std::size_t i = 0; i < items.size(); ++i) {
        RenameItem& item = items[i];
        if (item.problem) continue;
        if (item.newName.size() > maximumNameLength) {
            item.problem = RenameItem::Problem::tooLong;
        } else if (wanted.at(keys[i]) > 1) {
            item.problem = RenameItem::Problem::duplicate;
        } else {
            const FilePath target = standardized(renamedPath(item));
            const bool isTaken = !freed.contains(target.native()) && exists(target);
            if (isTaken) item.problem = RenameItem::Problem::exists;
        }
    }
    return items;
}

ExistsTest namesOnDisk(std::span<const InputFile> files, RenameWay way) {
    // Shared by the copies that a function makes of itself.
    const auto contents = std::make_shared<FolderContents>();
    if (way == RenameWay::inPlace) {
        for (const InputFile& file : files) contents->remove(file.url);
    }
    return [contents](const std::filesystem::path& path) { return contents->existing(path).has_value(); };
}

}  // namespace tamble::RenamePlanner
