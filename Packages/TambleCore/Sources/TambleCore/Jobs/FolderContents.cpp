#include <TambleCore/Jobs/FolderContents.h>
#include <TambleCore/Support/PathKey.h>
#include <TambleCore/Support/Text.h>

namespace tamble {
namespace {

std::string nameKey(const std::string& name) {
    return lowercased(precomposed(name));
}

}  // namespace

std::optional<std::filesystem::path> FolderContents::existing(
    const std::filesystem::path& path, const std::optional<std::filesystem::path>& isNot) {
    const std::filesystem::path place = standardized(path);
    const std::filesystem::path folder = place.parent_path();
    const std::string name = place.filename().native();
    std::optional<std::filesystem::path> found;
    const Names& names = namesIn(folder);
    const auto [first, last] = names.equal_range(nameKey(name));
    for (auto entry = first; entry != last; ++entry) {
        std::filesystem::path candidate = folder / entry->second;
        if (isNot && standardized(*isNot) == candidate) continue;
        if (entry->second == name) return candidate;
        if (!found) found = std::move(candidate);
    }
    return found;
}

void FolderContents::add(const std::filesystem::path& path) {
    const std::filesystem::path place = standardized(path);
    const std::string name = place.filename().native();
    namesIn(place.parent_path()).emplace(nameKey(name), name);
}

void FolderContents::remove(const std::filesystem::path& path) {
    const std::filesystem::path place = standardized(path);
    const std::string name = place.filename().native();
    Names& names = namesIn(place.parent_path());
    const auto [first, last] = names.equal_range(nameKey(name));
    for (auto entry = first; entry != last; ++entry) {
        if (entry->second != name) continue;
        names.erase(entry);
        return;
    }
}

FolderContents::Names& FolderContents::namesIn(const std::filesystem::path& folder) {
    const auto [found, isNew] = folders_.try_emplace(folder.native());
    Names& names = found->second;
    if (!isNew) return names;
    // A folder that is missing has no names; one that cannot be read shows at the move, which never
    // overwrites.
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().native();
        names.emplace(nameKey(name), name);
    }
    return names;
}

}  // namespace tamble
