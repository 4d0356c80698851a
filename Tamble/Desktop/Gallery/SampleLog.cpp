#include <Tamble/Desktop/Gallery/SampleLog.h>
#include <Tamble/Model/JobRecovery.h>
#include <Tamble/Model/JobRunner.h>

#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Jobs/Journal/JournalFile.h>
#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Support/UUID.h>

#include <array>
#include <chrono>
#include <fstream>

namespace tamble::gallery {
namespace {

using namespace std::chrono_literals;

struct Finished {
    std::chrono::minutes ago;
    const char* tool;
    const char* subject;
    int done = 0;
    int skipped = 0;
    int failed = 0;
    std::int64_t before = 0;
    std::int64_t after = 0;
    bool isUndone = false;
};

constexpr std::int64_t mega = 1'000'000;

/// The oldest first.
constexpr std::array jobs{
    Finished{6 * 24h, "image.removeMetadata", "For the club", 31, 0, 0, 96 * mega, 95 * mega},
    Finished{3 * 24h, "pdf.compress", "Manual.pdf", 1, 0, 0, 48 * mega, 11 * mega, true},
    Finished{25h, "files.rename", "Scans", 200},
    Finished{3h, "pdf.merge", "Invoice March.pdf and 11 others", 12, 0, 0, 9 * mega, 9 * mega},
    Finished{10min, "image.convert", "Goa trip", 126, 2, 0, 412 * mega, 96 * mega},
};

}  // namespace

void fillActivityLog() {
    ActivityStore store(systemEngine());
    const auto now = std::chrono::system_clock::now();
    for (const Finished& job : jobs) {
        store.add({.id = newUUID(),
                   .date = isoDate(now - job.ago),
                   .toolID = job.tool,
                   .subject = job.subject,
                   .doneCount = job.done,
                   .skippedCount = job.skipped,
                   .failedCount = job.failed,
                   .inputBytes = job.before,
                   .outputBytes = job.after,
                   .undone = job.isUndone});
    }
}

void leaveInterruptedJob() {
    const auto folder = folders::home() / "Documents/Minutes";
    std::filesystem::create_directories(folder);
    std::vector<InputFile> files;
    for (const char* name : {"May.txt", "June.txt", "July.txt"}) {
        const auto file = folder / name;
        std::ofstream(file) << "We met in the garden.\n";
        files.push_back({.url = file, .root = folder, .byteSize = 22});
    }
    const auto journal = std::make_shared<JournalFile>(journalFolder(), startedJob("pdf.compress", files));
    systemEngine(journal).run(std::move(files), CopyThroughProcessor(),
                              {.location = location::Folder{.value = folder / "Smaller"}});
}

}  // namespace tamble::gallery
