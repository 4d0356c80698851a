#include <Tamble/Model/JobRecovery.h>

#include <TambleCore/Jobs/Journal/InterruptedJob.h>
#include <TambleCore/Jobs/Journal/JournalFile.h>
#include <TambleCore/Jobs/Renaming/RenameMoves.h>
#include <TambleCore/Platform/FileLock.h>
#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>
#include <utility>

namespace tamble {
namespace {

constexpr Log activityLog("activity");

std::vector<std::filesystem::path> journalsIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> journals;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path().extension() == JournalFile::fileExtension) journals.push_back(entry->path());
    }
    return journals;
}

/// When the program died, as far as the journal tells: when it was last written.
std::chrono::system_clock::time_point endOf(const std::filesystem::path& journal) {
    const auto written =
        std::filesystem::last_write_time(journal) - std::filesystem::file_time_type::clock::now();
    return std::chrono::system_clock::now() +
           std::chrono::duration_cast<std::chrono::system_clock::duration>(written);
}

std::vector<FilePath> strandedOf(const RenameMoves& back) {
    std::vector<FilePath> stranded;
    for (std::size_t i = 0; i < back.renames().size(); ++i) {
        const PlannedRename& rename = back.renames()[i];
        if (back.place(i) == RenamePlace::from) stranded.push_back(rename.from);
        if (back.place(i) == RenamePlace::parked) stranded.push_back(*rename.parked);
    }
    return stranded;
}

/// A job that died while it renamed in place: none of its files is to be left behind under a new name.
RecoveredJob withOldNames(InterruptedJob interrupted, const std::filesystem::path& journal,
                          FileOperations& fileOps) {
    RenameMoves back = RenameMoves::resumed(reversed(std::move(interrupted.unfinishedRenames)), fileOps);
    back.run(RenameMoves::AfterProblem::goOn);
    RecoveredJob recovered{.entry = activityEntry(interrupted.job, {}, endOf(journal)),
                           .outcome = RecoveredJob::Outcome::namesPutBack,
                           .stranded = strandedOf(back)};
    if (!recovered.stranded.empty()) recovered.outcome = RecoveredJob::Outcome::namesNotBack;
    activityLog.notice("Found a job that was interrupted while renaming: {} old names are back, {} are not",
                       back.count(RenamePlace::to), recovered.stranded.size());
    return recovered;
}

/// Empty when its program lives, or it left nothing to take back.
std::optional<RecoveredJob> recover(const std::filesystem::path& journal, ActivityStore& store,
                                    FileOperations& fileOps) {
    const auto lock = FileLock::tryTake(journal);
    if (!lock || !lock->isStillAt(journal)) return std::nullopt;
    auto interrupted = InterruptedJob::read(journal);
    store.load();
    std::optional<RecoveredJob> recovered;
    if (interrupted && !interrupted->unfinishedRenames.empty()) {
        recovered = withOldNames(*std::move(interrupted), journal, fileOps);
        if (recovered->outcome == RecoveredJob::Outcome::namesNotBack) return recovered;
    } else if (interrupted && interrupted->undo.isEmpty()) {
        // Folders at most.
        apply(interrupted->undo, fileOps);
    } else if (interrupted && store.entry(interrupted->job.id) == nullptr) {
        recovered = {.entry = activityEntry(interrupted->job, std::move(interrupted->undo), endOf(journal))};
        activityLog.notice(
            "Found a job that was interrupted while saving: {} new files, {} in the Bin, {} renamed",
            recovered->entry.undo.createdFiles.size(), recovered->entry.undo.trashedItems.size(),
            recovered->entry.undo.renamedItems.size());
        if (!store.add(recovered->entry)) return std::nullopt;
    }
    std::filesystem::remove(journal);
    return recovered;
}

}  // namespace

std::filesystem::path journalFolder() {
    return folders::applicationSupport() / "journal";
}

std::vector<RecoveredJob> recoverInterruptedJobs(ActivityStore& store, FileOperations& fileOps,
                                                 const std::filesystem::path& folder) {
    std::vector<RecoveredJob> jobs;
    for (const auto& journal : journalsIn(folder)) {
        try {
            if (auto job = recover(journal, store, fileOps)) jobs.push_back(*std::move(job));
        } catch (const std::exception& error) {
            activityLog.error("Couldn't recover a job: {}", causeOf(error));
        }
    }
    std::ranges::sort(jobs, {}, [](const RecoveredJob& job) { return job.entry.date; });
    return jobs;
}

}  // namespace tamble
