#include <Tamble/CommandLine/Commands/ActivityText.h>
#include <Tamble/CommandLine/Commands/InterruptedJobs.h>
#include <Tamble/CommandLine/Report/JobReport.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/CommandLine/Text/SafeText.h>
#include <Tamble/CommandLine/Text/Terminal.h>
#include <Tamble/Model/JobRecovery.h>

#include <TambleCore/Jobs/StagingFolder.h>
#include <TambleCore/Platform/SystemFileOperations.h>

#include <fmt/format.h>

namespace tamble {
namespace {

std::int64_t sizeOf(const auto& list) {
    return static_cast<std::int64_t>(list.size());
}

/// What it was doing, and what became of that.
std::string accountOf(const RecoveredJob& job) {
    const UndoRecord& undo = job.entry.undo;
    switch (job.outcome) {
        case RecoveredJob::Outcome::namesPutBack:
            return "while it renamed: all files have their old names.";
        case RecoveredJob::Outcome::namesNotBack:
            return fmt::format(
                "while it renamed: {} couldn't get the old name back, which the next start tries again. It "
                "is "
                "at “{}”.",
                countText(sizeOf(job.stranded), "file", "files"), shownPath(job.stranded.front()));
        case RecoveredJob::Outcome::logged:
            break;
    }
    const std::string toUndo = fmt::format("To undo it: tamble undo {}", shortID(job.entry));
    if (isOfRenames(undo)) {
        return fmt::format("when it had renamed {}. {}",
                           countText(sizeOf(undo.renamedItems), "file", "files"), toUndo);
    }
    return fmt::format("while it saved: {}, {} in the Bin. {}",
                       countText(job.entry.doneCount, "new file", "new files"),
                       countText(sizeOf(undo.trashedItems), "original", "originals"), toUndo);
}

}  // namespace

void announceInterruptedJobs() {
    const auto fileOps = std::make_shared<SystemFileOperations>();
    ActivityStore store(JobEngine{.fileOps = fileOps});
    const auto jobs = recoverInterruptedJobs(store, *fileOps);
    if (!jobs.empty()) removeStaleStagingFolders();
    for (const RecoveredJob& job : jobs) {
        printError(fmt::format("A job over “{}” was interrupted on {} {}\n", safeText(job.entry.subject),
                               localDate(job.entry), accountOf(job)));
    }
}

}  // namespace tamble
