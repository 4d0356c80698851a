#pragma once

#include <TambleCore/Jobs/FileProcessor.h>
#include <TambleCore/Jobs/JobResult.h>
#include <TambleCore/Jobs/OutputPlanner.h>
#include <TambleCore/Jobs/ProgressTracker.h>
#include <TambleCore/Jobs/StagingArea.h>
#include <TambleCore/Platform/FileState.h>

namespace tamble {

/// The output waits in its staging place.
struct Staged {
    /// What the original was like when it was read; it goes to the Bin only as long as it is still so. Empty
    /// for an output of several.
    std::optional<FileState> original = {};
    /// What the tool has to say about the output.
    std::optional<ItemNote> note = {};
};
/// How the processing of one item ended.
using StageOutcome = std::variant<Staged, outcome::Skipped, outcome::Failed, outcome::Cancelled>;

/// The first phase of a job: every output is written into the staging area.
struct ItemProcessing {
    const OutputPlanner& outputs;
    StagingArea& staging;
    ProgressTracker& tracker;
    std::stop_token stop;

    /// One outcome per file, in order. At most `maxConcurrent` files are worked on at once. Never throws.
    std::vector<StageOutcome> processAll(std::span<const InputFile> files, const FileProcessor& processor,
                                         int maxConcurrent) const;
    /// The one output of all the files, which are not none.
    StageOutcome combine(std::span<const InputFile> files, const FileCombiner& combiner) const;
};

}  // namespace tamble
