#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/RecentlyTrashed.h>
#include <TambleCore/Platform/TrashFolder.h>
#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/PathKey.h>

#include <algorithm>

#include <sys/stat.h>

namespace tamble {
namespace {

using Time = std::chrono::system_clock::time_point;

struct Note {
    std::filesystem::path file;
    Time time;
};

/// The notes of a Bin that were written since then, the oldest first.
std::vector<Note> notesSince(const std::filesystem::path& infoFolder, Time since) {
    std::vector<Note> notes;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(infoFolder, error), end; !error && entry != end;
         entry.increment(error)) {
        struct stat properties {};
        if (entry->path().extension() != trash::noteExtension) continue;
        if (::lstat(entry->path().c_str(), &properties) != 0) continue;
        const auto written = std::chrono::seconds(properties.st_mtim.tv_sec) +
                             std::chrono::nanoseconds(properties.st_mtim.tv_nsec);
        const Time time{std::chrono::duration_cast<Time::duration>(written)};
        if (time >= since) notes.push_back({entry->path(), time});
    }
    std::ranges::sort(notes, {}, &Note::time);
    return notes;
}

/// The place that a note names, as it names it.
std::optional<std::string> placeIn(std::string_view note) {
    while (!note.empty()) {
        const std::string_view line = note.substr(0, note.find('\n'));
        if (line.starts_with(trash::notePathKey)) {
            return percentDecoded(line.substr(trash::notePathKey.size()));
        }
        note.remove_prefix(std::min(line.size() + 1, note.size()));
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::filesystem::path> RecentlyTrashed::placeOf(const std::filesystem::path& original) {
    const std::filesystem::path place = standardized(original);
    std::error_code error;
    const auto folder = std::filesystem::canonical(place.parent_path(), error);
    if (error) return std::nullopt;
    const Items& items = itemsNear(folder);
    const auto found = items.find((folder / place.filename()).native());
    if (found == items.end()) return std::nullopt;
    return found->second;
}

const RecentlyTrashed::Items& RecentlyTrashed::itemsNear(const std::filesystem::path& folder) {
    const auto volume = Volume::of(folder);
    const auto known = std::ranges::find(bins_, volume, &Bin::volume);
    if (known != bins_.end()) return known->items;
    return bins_.emplace_back(volume, readBin(folder)).items;
}

RecentlyTrashed::Items RecentlyTrashed::readBin(const std::filesystem::path& folder) const {
    Items items;
    try {
        const TrashFolder bin = TrashFolder::forItemsOf(folder);
        for (const Note& note : notesSince(bin.info(), since_)) {
            const auto place = placeIn(readWholeFile(note.file));
            const std::filesystem::path item = bin.files() / note.file.stem();
            std::error_code error;
            if (!place || !std::filesystem::exists(std::filesystem::symlink_status(item, error))) continue;
            items.insert_or_assign((bin.top / *place).lexically_normal().native(), item);
        }
    } catch (const std::filesystem::filesystem_error&) {
        // What was read of it counts.
    }
    return items;
}

}  // namespace tamble
