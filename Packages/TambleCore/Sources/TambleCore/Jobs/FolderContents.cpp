#include <TambleCore/Jobs/FolderContents.h>
#include <TambleCore/Support/PathKey.h>
#include <TambleCore/Support/Text.h>

namespace tamble {
namespace {

std::string nameKey(std::string_view name) {
    return lowercased(precomposed(name));
}

/// A place as text: taken apart as a path it would cost more than the look for it.
struct Place {
    explicit Place(const std::filesystem::path& path) : text(standardized(path).native()) {}

    /// With the slash at its end.
    std::string folder() const { return text.substr(0, nameStart()); }
    std::string_view name() const { return std::string_view(text).substr(nameStart()); }

    std::string text;

  private:
    std::size_t nameStart() const { return text.rfind('/') + 1; }
};

}  // namespace

std::optional<std::filesystem::path> FolderContents::existing(
    const std::filesystem::path& path, const std::optional<std::filesystem::path>& isNot) {
    const Place place(path);
    const std::string folder = place.folder();
    std::optional<std::string> found;
    const Names& names = namesIn(folder);
    const auto [first, last] = names.equal_range(nameKey(place.name()));
    for (auto entry = first; entry != last; ++entry) {
        std::string candidate = folder + entry->second;
        if (isNot && standardized(*isNot).native() == candidate) continue;
        if (entry->second == place.name()) return candidate;
        if (!found) found = std::move(candidate);
    }
    return found;
}

void FolderContents::add(const std::filesystem::path& path) {
    const Place place(path);
    namesIn(place.folder()).emplace(nameKey(place.name()), place.name());
}

void FolderContents::remove(const std::filesystem::path& path) {
    const Place place(path);
    Names& names = namesIn(place.folder());
    const auto [first, last] = names.equal_range(nameKey(place.name()));
    for (auto entry = first; entry != last; ++entry) {
        if (entry->second != place.name()) continue;
        names.erase(entry);
        return;
    }
}

FolderContents::Names& FolderContents::namesIn(const std::string& folder) {
    const auto [found, isNew] = folders_.try_emplace(folder);
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
