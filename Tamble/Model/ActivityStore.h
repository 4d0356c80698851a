#pragma once

#include <Tamble/Model/ActivityEntry.h>
#include <Tamble/Model/SharedFile.h>
#include <Tamble/Model/StoredEntry.h>

#include <TambleCore/Jobs/JobEngine.h>

#include <functional>
#include <set>

namespace tamble {

/// The log of finished jobs, kept in a file that several programs share: every change is merged into what the
/// file holds by then. To be used by one thread.
class ActivityStore {
  public:
    /// Undo works through the engine's file operations. Reads nothing yet.
    explicit ActivityStore(JobEngine engine, std::filesystem::path fileURL = defaultFile());

    static std::filesystem::path defaultFile();
    /// Of more entries, or more bytes of JSON, the oldest are forgotten; the newest entry always stays.
    static constexpr std::size_t maximumEntries = 1000;
    static constexpr std::size_t maximumBytes = std::size_t{64} << 20U;

    /// Reads the file. One that cannot be read or is no list counts as empty, and is moved aside by the next
    /// change.
    void load();

    /// The newest first. Decodes them when it is first called after a change; an entry that cannot be decoded
    /// is left out, here but not in the file.
    const std::vector<ActivityEntry>& entries() const;
    const ActivityEntry* entry(const std::string& id) const;

    /// Answers whether the entry is on disk; in memory it is in any case.
    bool add(ActivityEntry entry);
    /// Takes the job back and waits until it is. Nothing when there is no such entry, or it is undone, or
    /// being undone.
    std::optional<UndoReport> undo(std::string id);
    /// Forgets all entries; the files of the jobs stay as they are.
    void clear();

    const std::set<std::string>& undoingIDs() const noexcept { return undoingIDs_; }
    /// Entries undone in this run of the program.
    const std::set<std::string>& undoneIDs() const noexcept { return undoneIDs_; }

    /// Called after every change of what the functions above answer.
    std::function<void()> onChange;

  private:
    using Change = std::function<void(std::vector<StoredEntry>&)>;
    std::optional<std::vector<StoredEntry>> entriesOnDisk() const;
    bool merge(const Change& change);
    UndoReport takeBack(ActivityEntry entry);
    void hold(std::vector<StoredEntry> stored);
    void changed() const;

    JobEngine engine_;
    SharedFile file_;
    std::vector<StoredEntry> stored_;
    /// `stored_` decoded, once that was asked for.
    mutable std::optional<std::vector<ActivityEntry>> entries_;
    std::set<std::string> undoingIDs_;
    std::set<std::string> undoneIDs_;
};

}  // namespace tamble
