#include <Tamble/Model/JobTotals.h>

#include <algorithm>
#include <filesystem>

namespace tamble {
namespace {

/// How many files a folder that a tool wrote holds; 0 for a file.
int filesIn(const std::filesystem::path& output) {
    std::error_code error;
    int count = 0;
    for (std::filesystem::directory_iterator entry(output, error), end; !error && entry != end;
         entry.increment(error))
        ++count;
    return count;
}

}  // namespace

JobTotals JobTotals::of(const JobResult& result) {
    JobTotals totals;
    for (const auto& output : result.undo.createdFiles) {
        const int files = filesIn(output);
        totals.savedFolders += files > 0 ? 1 : 0;
        totals.saved += std::max(files, 1);
    }
    for (const auto& item : result.items) {
        if (std::holds_alternative<outcome::Done>(item.outcome)) {
            ++totals.done;
            totals.bytesBefore += item.file.byteSize;
        }
        if (std::holds_alternative<outcome::Skipped>(item.outcome)) ++totals.skipped;
        if (std::holds_alternative<outcome::Failed>(item.outcome)) ++totals.failed;
    }
    for (const auto& [path, fingerprint] : result.undo.createdFingerprints)
        totals.bytesAfter += fingerprint.size;
    return totals;
}

}  // namespace tamble
