#include <Tamble/Model/JobRecovery.h>

#include <TambleCore/Jobs/Journal/InterruptedJob.h>
#include <TambleCore/Jobs/Journal/JournalFile.h>
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

/// Empty when its program lives, or it left nothing to take back.
std::optional<ActivityEntry> recover(const std::filesystem::path& journal, ActivityStore& store,
                                     FileOperations& fileOps) {
    const auto lock = FileLock::tryTake(journal);
    if (!lock || !lock->isStillAt(journal)) return std::nullopt;
    auto interrupted = InterruptedJob::read(journal);
    store.load();
    std::optional<ActivityEntry> recovered;
    if (interrupted && interrupted->undo.isEmpty()) {
        // Folders at most.
        apply(interrupted->undo, fileOps);
    } else if (interrupted && store.entry(interrupted->job.id) == nullptr) {
        recovered = activityEntry(interrupted->job, std::move(interrupted->undo), endOf(journal));
        if (!store.add(*recovered)) return std::nullopt;
    }
    std::filesystem::remove(journal);
    return recovered;
}

}  // namespace

std::filesystem::path journalFolder() {
    return folders::applicationSupport() / "journal";
}

std::vector<ActivityEntry> recoverInterruptedJobs(ActivityStore& store, FileOperations& fileOps,
                                                  const std::filesystem::path& folder) {
    std::vector<ActivityEntry> entries;
    for (const auto& journal : journalsIn(folder)) {
        try {
            if (auto entry = recover(journal, store, fileOps)) {
                activityLog.notice(
                    "Found a job that was interrupted while saving: {} new files, {} in the Bin",
                    entry->undo.createdFiles.size(), entry->undo.trashedItems.size());
                entries.push_back(*std::move(entry));
            }
        } catch (const std::exception& error) {
            activityLog.error("Couldn't recover a job: {}", causeOf(error));
        }
    }
    std::ranges::sort(entries, {}, &ActivityEntry::date);
    return entries;
}

}  // namespace tamble
