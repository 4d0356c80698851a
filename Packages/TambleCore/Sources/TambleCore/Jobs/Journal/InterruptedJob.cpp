#include <TambleCore/Jobs/Journal/InterruptedJob.h>
#include <TambleCore/Jobs/Journal/JournalText.h>
#include <TambleCore/Jobs/Renaming/RenameMoves.h>
#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/RecentlyTrashed.h>
#include <TambleCore/Support/PathKey.h>

#include <algorithm>
#include <chrono>
#include <unordered_set>
#include <utility>

namespace tamble {
namespace {

/// Completes the record of a job by what the disk shows.
class Reconciliation {
  public:
    explicit Reconciliation(JournalText text)
        : planned_(std::move(text.planned)),
          record_(std::move(text.record)),
          recentlyTrashed_(startOf(text.job)) {
        for (const auto& output : record_.createdFiles) created_.insert(standardized(output).native());
    }

    UndoRecord run() {
        dropWhatCameBack();
        for (const auto& [index, planned] : planned_) addIfCreated(planned);
        for (const TrashedItem& item : record_.trashedItems) trashed_.insert(item.original.native());
        for (const auto& [index, planned] : planned_) {
            if (planned.clashing) addIfTrashed(*planned.clashing);
            if (planned.original) addIfTrashed(*planned.original);
        }
        return std::move(record_);
    }

  private:
    /// The clock of file systems may lag behind the system's by a moment. Nobody knows where a damaged number
    /// comes from: then nothing counts as recent.
    static std::chrono::system_clock::time_point startOf(const journal::Job& job) {
        using Clock = std::chrono::system_clock;
        const std::chrono::duration<double> since(job.started);
        const std::chrono::duration<double> now = Clock::now().time_since_epoch();
        if (!(since.count() >= 0 && since <= now)) return Clock::now();
        return Clock::time_point(std::chrono::duration_cast<Clock::duration>(since)) -
               std::chrono::seconds(1);
    }

    /// Put back, and killed before that was written down.
    void dropWhatCameBack() {
        std::erase_if(record_.trashedItems, [](const TrashedItem& item) {
            return !isThere(item.inTrash) && isThere(item.original);
        });
    }

    void addIfCreated(const journal::Planned& planned) {
        if (planned.inode == 0 || inodeOf(planned.target) != planned.inode) return;
        if (!created_.insert(standardized(planned.target).native()).second) return;
        record_.createdFiles.push_back(planned.target);
        record_.createdFingerprints.emplace(fingerprintKey(planned.target), planned.fingerprint);
    }

    void addIfTrashed(const std::filesystem::path& original) {
        if (trashed_.contains(original.native())) return;
        if (isThere(original) && !created_.contains(standardized(original).native())) return;
        auto landed = recentlyTrashed_.placeOf(original);
        if (landed) record_.trashedItems.push_back({.original = original, .inTrash = *std::move(landed)});
    }

    std::map<std::uint64_t, journal::Planned> planned_;
    UndoRecord record_;
    RecentlyTrashed recentlyTrashed_;
    std::unordered_set<std::string> created_;
    std::unordered_set<std::string> trashed_;
};

bool isUnfinished(const PlannedRename& rename) {
    const RenamePlace place = placeOf(rename);
    return place == RenamePlace::from || place == RenamePlace::parked;
}

void addRenames(InterruptedJob& interrupted, JournalText& text) {
    if (text.areAllNamesKept) return;
    if (!text.areAllRenamed && std::ranges::any_of(text.renames, isUnfinished)) {
        interrupted.unfinishedRenames = std::move(text.renames);
        return;
    }
    for (PlannedRename& rename : text.renames) {
        interrupted.undo.renamedItems.push_back({std::move(rename.from), std::move(rename.to)});
    }
}

}  // namespace

std::optional<InterruptedJob> InterruptedJob::read(const std::filesystem::path& journalFile) {
    JournalText text = JournalText::of(readWholeFile(journalFile));
    if (!text.hasBegun) return std::nullopt;
    InterruptedJob interrupted{.job = text.job};
    if (text.renames.empty()) {
        interrupted.undo = Reconciliation(std::move(text)).run();
    } else {
        addRenames(interrupted, text);
    }
    return interrupted;
}

}  // namespace tamble
