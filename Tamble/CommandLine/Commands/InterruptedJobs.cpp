#include <Tamble/CommandLine/Commands/ActivityText.h>
#include <Tamble/CommandLine/Commands/InterruptedJobs.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/CommandLine/Text/SafeText.h>
#include <Tamble/CommandLine/Text/Terminal.h>
#include <Tamble/Model/JobRecovery.h>

#include <TambleCore/Jobs/StagingFolder.h>
#include <TambleCore/Platform/SystemFileOperations.h>

#include <fmt/format.h>

namespace tamble {

void announceInterruptedJobs() {
    const auto fileOps = std::make_shared<SystemFileOperations>();
    ActivityStore store(JobEngine{.fileOps = fileOps});
    const auto entries = recoverInterruptedJobs(store, *fileOps);
    if (!entries.empty()) removeStaleStagingFolders();
    for (const ActivityEntry& entry : entries) {
        printError(fmt::format(
            "A job over “{}” was interrupted on {} while it saved: {}, {} in the Bin. To undo it: tamble "
            "undo {}\n",
            safeText(entry.subject), localDate(entry), countText(entry.doneCount, "new file", "new files"),
            countText(static_cast<std::int64_t>(entry.undo.trashedItems.size()), "original", "originals"),
            shortID(entry)));
    }
}

}  // namespace tamble
