#include <Tamble/Model/ActivityStore.h>
#include <Tamble/Model/PreferencesStore.h>
#include <Tamble/Model/UndoMarks.h>

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Platform/FileLock.h>
#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>
#include <utility>

namespace tamble {
namespace {

constexpr Log activityLog("activity");

auto find(std::vector<StoredEntry>& entries, const std::string& id) {
    return std::ranges::find_if(entries, [&](const StoredEntry& entry) { return entry.hasID(id); });
}

void forgetOldest(std::vector<StoredEntry>& entries) {
    std::size_t kept = 0;
    for (std::size_t bytes = 0; kept < std::min(entries.size(), ActivityStore::maximumEntries); ++kept) {
        bytes += entries[kept].json().size();
        if (kept > 0 && bytes > ActivityStore::maximumBytes) break;
    }
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(kept), entries.end());
}

/// For the tools of the start screen; no job fails for it.
void countUseOf(const ActivityEntry& entry) {
    if (ToolCatalog::withID(entry.toolID) == nullptr) return;
    try {
        PreferencesStore().countUse(entry.toolID, std::chrono::system_clock::now());
    } catch (const std::exception& error) {
        activityLog.error("Couldn't count the use of a tool: {}", causeOf(error));
    }
}

}  // namespace

ActivityStore::ActivityStore(JobEngine engine, std::filesystem::path fileURL)
    : engine_(std::move(engine)), file_(std::move(fileURL)) {}

std::filesystem::path ActivityStore::defaultFile() {
    return folders::applicationSupport() / "activity.json";
}

void ActivityStore::load() {
    hold(entriesOnDisk().value_or(std::vector<StoredEntry>()));
    changed();
}

const std::vector<ActivityEntry>& ActivityStore::entries() const {
    if (entries_) return *entries_;
    entries_.emplace();
    for (const StoredEntry& stored : stored_) {
        try {
            entries_->push_back(stored.decoded());
        } catch (const DecodeError& error) {
            activityLog.error("Activity entry unreadable, leaving it out: {}", error.what());
        }
    }
    return *entries_;
}

const ActivityEntry* ActivityStore::entry(const std::string& id) const {
    const auto found = std::ranges::find(entries(), id, &ActivityEntry::id);
    return found == entries().end() ? nullptr : &*found;
}

bool ActivityStore::add(ActivityEntry entry) {
    const StoredEntry added(entry);
    countUseOf(entry);
    return merge([&](std::vector<StoredEntry>& entries) {
        // The change is made once on disk and once more in memory when the disk refuses it.
        if (find(entries, entry.id) == entries.end()) entries.insert(entries.begin(), added);
        forgetOldest(entries);
    });
}

std::optional<UndoReport> ActivityStore::undo(std::string id) {
    if (!undoingIDs_.insert(id).second) return std::nullopt;
    changed();
    std::optional<UndoReport> report;
    try {
        // One undo at a time among all programs: two of one job would each see the other's half-done work.
        std::filesystem::create_directories(file_.path().parent_path());
        const FileLock lock = FileLock::waitFor(file_.lockFile("undo"));
        if (auto onDisk = entriesOnDisk()) hold(std::move(*onDisk));
        const auto found = find(stored_, id);
        // Decoded already, it need not be once more.
        const ActivityEntry* known = entries_ ? entry(id) : nullptr;
        if (auto undoing = found == stored_.end() ? std::nullopt
                           : known != nullptr     ? std::optional(*known)
                                                  : std::optional(found->decoded());
            undoing && !undoing->undone) {
            report = takeBack(std::move(*undoing));
            activityLog.notice("Undid job: {} removed, {} restored, {} problems", report->removedOutputs,
                               report->restoredItems, report->problems);
        }
    } catch (const std::exception& error) {
        activityLog.error("Couldn't undo: {}", causeOf(error));
    }
    undoingIDs_.erase(id);
    changed();
    return report;
}

/// An undo that was killed is known by its mark, and is gone on with.
UndoReport ActivityStore::takeBack(ActivityEntry entry) {
    const std::string id = entry.id;
    UndoMarks marks(file_.path());
    const bool isResumed = marks.contain(id);
    auto wayBack = isResumed ? marks.wayBack(id) : std::vector<PlannedRename>();
    if (wayBack.empty()) wayBack = plannedWayBack(entry.undo);
    marks.add(id, wayBack);
    const UndoReport report = isResumed ? resume(entry.undo, std::move(wayBack), *engine_.fileOps)
                                        : apply(entry.undo, std::move(wayBack), *engine_.fileOps);
    undoneIDs_.insert(id);
    entry.undone = true;
    const StoredEntry undone(entry);
    const bool isSaved = merge([&](std::vector<StoredEntry>& entries) {
        if (const auto old = find(entries, id); old != entries.end()) *old = undone;
    });
    if (isSaved) marks.remove(id);
    return report;
}

void ActivityStore::clear() {
    merge([](std::vector<StoredEntry>& entries) { entries.clear(); });
}

/// Empty when there is a file that cannot be read or is no list.
std::optional<std::vector<StoredEntry>> ActivityStore::entriesOnDisk() const {
    try {
        auto text = file_.readText();
        return text ? StoredEntry::all(std::move(*text)) : std::vector<StoredEntry>();
    } catch (const std::exception& error) {
        activityLog.error("Activity file unreadable, starting fresh: {}", causeOf(error));
        return std::nullopt;
    }
}

/// Makes the change to what the file holds by now; when that cannot be saved, to what is in memory, and
/// answers false.
bool ActivityStore::merge(const Change& change) {
    try {
        std::vector<StoredEntry> merged;
        file_.updateText([&] {
            auto onDisk = entriesOnDisk();
            if (!onDisk) file_.moveAside();
            merged = onDisk ? std::move(*onDisk) : std::vector<StoredEntry>();
            change(merged);
            return logParts(merged);
        });
        hold(std::move(merged));
        changed();
        return true;
    } catch (const std::exception& error) {
        activityLog.error("Couldn't save activity: {}", causeOf(error));
        change(stored_);
        entries_.reset();
        changed();
        return false;
    }
}

void ActivityStore::hold(std::vector<StoredEntry> stored) {
    const bool isSame = std::ranges::equal(stored, stored_, {}, &StoredEntry::json, &StoredEntry::json);
    stored_ = std::move(stored);
    if (!isSame) entries_.reset();
}

void ActivityStore::changed() const {
    if (onChange) onChange();
}

}  // namespace tamble
