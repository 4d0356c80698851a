#include <Tamble/Model/ActivityStore.h>
#include <Tamble/Model/UndoMarks.h>

#include <TambleCore/Platform/FileLock.h>
#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>
#include <utility>

namespace tamble {
namespace {

constexpr Log activityLog("activity");

auto find(std::vector<ActivityEntry>& entries, const std::string& id) {
    return std::ranges::find(entries, id, &ActivityEntry::id);
}

}  // namespace

ActivityStore::ActivityStore(JobEngine engine, std::filesystem::path fileURL)
    : engine_(std::move(engine)), file_(std::move(fileURL)) {}

std::filesystem::path ActivityStore::defaultFile() {
    return folders::applicationSupport() / "activity.json";
}

void ActivityStore::load() {
    entries_ = entriesOnDisk().value_or(std::vector<ActivityEntry>());
    changed();
}

const ActivityEntry* ActivityStore::entry(const std::string& id) const {
    const auto found = std::ranges::find(entries_, id, &ActivityEntry::id);
    return found == entries_.end() ? nullptr : &*found;
}

bool ActivityStore::add(ActivityEntry entry) {
    return merge([&](std::vector<ActivityEntry>& entries) {
        // The change is made once on disk and once more in memory when the disk refuses it.
        if (find(entries, entry.id) == entries.end()) entries.insert(entries.begin(), entry);
        if (entries.size() > maximumEntries) entries.resize(maximumEntries);
    });
}

std::optional<UndoReport> ActivityStore::undo(const std::string& id) {
    if (!undoingIDs_.insert(id).second) return std::nullopt;
    changed();
    std::optional<UndoReport> report;
    try {
        // One undo at a time among all programs: two of one job would each see the other's half-done work.
        std::filesystem::create_directories(file_.path().parent_path());
        const FileLock lock = FileLock::waitFor(file_.lockFile("undo"));
        if (auto onDisk = entriesOnDisk()) entries_ = std::move(*onDisk);
        if (const ActivityEntry* found = entry(id); found != nullptr && !found->undone) {
            report = takeBack(*found);
            activityLog.notice("Undid job: {} removed, {} restored, {} problems", report->removedOutputs,
                               report->restoredItems, report->problems);
        }
    } catch (const std::filesystem::filesystem_error& error) {
        activityLog.error("Couldn't undo: {}", causeOf(error));
    }
    undoingIDs_.erase(id);
    changed();
    return report;
}

/// An undo that was killed is known by its mark, and is gone on with.
UndoReport ActivityStore::takeBack(const ActivityEntry& entry) {
    const std::string id = entry.id;
    UndoMarks marks(file_.path());
    const bool isResumed = marks.contain(id);
    marks.add(id);
    const UndoReport report =
        isResumed ? resume(entry.undo, *engine_.fileOps) : apply(entry.undo, *engine_.fileOps);
    undoneIDs_.insert(id);
    const bool isSaved = merge([&](std::vector<ActivityEntry>& entries) {
        if (const auto undone = find(entries, id); undone != entries.end()) undone->undone = true;
    });
    if (isSaved) marks.remove(id);
    return report;
}

void ActivityStore::clear() {
    merge([](std::vector<ActivityEntry>& entries) { entries.clear(); });
}

/// Empty when there is a file that cannot be read or decoded.
std::optional<std::vector<ActivityEntry>> ActivityStore::entriesOnDisk() const {
    try {
        const auto document = file_.read();
        return document ? decodeJson<std::vector<ActivityEntry>>(*document) : std::vector<ActivityEntry>();
    } catch (const std::exception& error) {
        activityLog.error("Activity file unreadable, starting fresh: {}", causeOf(error));
        return std::nullopt;
    }
}

/// Makes the change to what the file holds by now; when that cannot be saved, to what is in memory, and
/// answers false.
bool ActivityStore::merge(const Change& change) {
    try {
        std::vector<ActivityEntry> merged;
        file_.update([&] {
            auto onDisk = entriesOnDisk();
            if (!onDisk) file_.moveAside();
            merged = onDisk ? std::move(*onDisk) : std::vector<ActivityEntry>();
            change(merged);
            return encodeJson(merged);
        });
        entries_ = std::move(merged);
        changed();
        return true;
    } catch (const std::exception& error) {
        activityLog.error("Couldn't save activity: {}", causeOf(error));
        change(entries_);
        changed();
        return false;
    }
}

void ActivityStore::changed() const {
    if (onChange) onChange();
}

}  // namespace tamble
