#pragma once

#include <TambleCore/Jobs/FileProcessor.h>
#include <TambleCore/Jobs/JobPlan.h>
#include <TambleCore/Jobs/JobProgress.h>
#include <TambleCore/Jobs/JobResult.h>
#include <TambleCore/Jobs/Journal/JobJournal.h>
#include <TambleCore/Jobs/SaveLocation.h>
#include <TambleCore/Platform/FileOperations.h>

#include <functional>
#include <memory>
#include <span>
#include <stop_token>

namespace tamble {

struct JobConfiguration {
    SaveLocation location = location::NextToOriginal{};
    ClashPolicy clashPolicy = ClashPolicy::addNumber;
    /// How many items are processed at the same time.
    int maxConcurrent = defaultConcurrency();

    /// The number of processor cores minus one, within 1…4.
    static int defaultConcurrency();
};

/// Turns a batch of inputs into new files: processing into private staging folders, several items at once;
/// then saving, one by one in input order, which is never interrupted.
struct JobEngine {
    std::shared_ptr<FileOperations> fileOps;
    /// May be empty.
    std::shared_ptr<JobJournal> journal = {};

    /// Never throws for a problem of an item or of the disk: every problem becomes an outcome. Blocks until
    /// the job is over. A stop request during processing saves nothing; during saving it is ignored.
    /// `onProgress` may be called from any thread, one call at a time. The files end up in the result: move a
    /// long list in.
    JobResult run(std::vector<InputFile> files, const FileProcessor& processor,
                  const JobConfiguration& configuration, const ProgressCallback& onProgress = {},
                  std::stop_token stop = {}) const;

    /// The same for a tool with exactly one output; every input gets the one outcome.
    JobResult runCombined(std::vector<InputFile> files, const FileCombiner& combiner,
                          const JobConfiguration& configuration, const ProgressCallback& onProgress = {},
                          std::stop_token stop = {}) const;

    /// Where run() would put each output, or why it would leave an input alone before any work. Touches
    /// nothing.
    JobPlan plan(std::span<const InputFile> files, const FileProcessor& processor,
                 const JobConfiguration& configuration) const;

    /// Where runCombined() would put its one output; one entry, none for no files.
    JobPlan planCombined(std::span<const InputFile> files, const FileCombiner& combiner,
                         const JobConfiguration& configuration) const;
};

}  // namespace tamble
