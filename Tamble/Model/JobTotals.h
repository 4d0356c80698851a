#pragma once

#include <TambleCore/Jobs/JobResult.h>

namespace tamble {

/// How many inputs ended how, and what became of their bytes.
struct JobTotals {
    /// New files, also those in folders that a tool wrote.
    int saved = 0;
    int savedFolders = 0;
    /// Inputs.
    int done = 0;
    int skipped = 0;
    int failed = 0;
    /// Of the inputs that were done, and of the new files.
    std::int64_t bytesBefore = 0;
    std::int64_t bytesAfter = 0;

    static JobTotals of(const JobResult& result);
};

}  // namespace tamble
