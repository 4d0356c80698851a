#pragma once

#include <Tamble/Model/WatchedProcessor.h>

#include <TambleCore/Jobs/FileRenamer.h>
#include <TambleCore/Jobs/Isolation/WorkerPool.h>
#include <TambleCore/Jobs/JobEngine.h>
#include <TambleCore/Jobs/ToolDefinition.h>

namespace tamble {

/// The engine over the machine's own files.
JobEngine systemEngine(std::shared_ptr<JobJournal> journal = {});

/// All that a job is made of.
struct JobOrder {
    const ToolDefinition* tool = nullptr;
    Json settings;
    Secrets secrets;
    std::vector<InputFile> files;
    JobConfiguration configuration;
    /// For tools that rename.
    RenameWay renameWay = RenameWay::inPlace;
};

struct FinishedJob {
    JobResult result;
    /// Of its entry in the activity log; empty when the job left nothing to remember.
    std::string activityID;
};

/// Runs jobs in worker processes, each with a journal, and puts them into the activity log.
class JobRunner {
  public:
    explicit JobRunner(std::shared_ptr<WorkerPool> pool) : pool_(std::move(pool)) {}

    /// Called from any thread, those for single files by several at once; each may be empty.
    struct Watch {
        ProgressCallback onProgress = {};
        /// Take each file that is begun and how each ended, for tools that make one output of one input.
        std::function<void(const InputFile&)> onStart = {};
        std::function<void(ItemEnd)> onEnd = {};
    };

    /// Blocks until the job is over and remembered; see JobEngine::run. Throws DecodeError for settings that
    /// are none of the tool's.
    FinishedJob run(JobOrder order, const Watch& watch, std::stop_token stop) const;

    /// Where run() would put each output: one entry per input, or one for a tool that makes one of all; for a
    /// tool that renames, the copies. Touches nothing.
    JobPlan plan(const JobOrder& order) const;

  private:
    std::shared_ptr<WorkerPool> pool_;
};

}  // namespace tamble
