#include <Tamble/Model/ActivityStore.h>
#include <Tamble/Model/JobRecovery.h>
#include <Tamble/Model/JobRunner.h>
#include <Tamble/Model/ProtectedWork.h>

#include <TambleCore/Jobs/Journal/JournalFile.h>
#include <TambleCore/Platform/SystemFileOperations.h>

namespace tamble {
namespace {

using Processor = std::unique_ptr<FileProcessor>;
using Combiner = std::unique_ptr<FileCombiner>;
using RenamerPointer = std::unique_ptr<FileRenamer>;

bool leftAnything(const JobResult& result) {
    const auto isDone = [](const ItemResult& item) {
        return std::holds_alternative<outcome::Done>(item.outcome);
    };
    return !result.undo.isEmpty() || std::ranges::any_of(result.items, isDone);
}

/// Does the job by whatever the tool makes of its settings.
struct Run {
    const JobEngine& engine;
    JobOrder& order;
    const JobRunner::Watch& watch;
    std::stop_token stop;

    JobResult processed(const FileProcessor& processor) {
        const WatchedProcessor watched(processor, watch.onStart, watch.onEnd);
        return engine.run(std::move(order.files), watched, order.configuration, watch.onProgress, stop);
    }
    JobResult operator()(const Processor& processor) { return processed(*processor); }
    JobResult operator()(const Combiner& combiner) {
        return engine.runCombined(std::move(order.files), *combiner, order.configuration, watch.onProgress,
                                  stop);
    }
    JobResult operator()(const RenamerPointer& renamer) {
        if (order.renameWay == RenameWay::inPlace) {
            return renamer->renameInPlace(std::move(order.files), engine, watch.onProgress, stop);
        }
        const auto copier = renamer->copier(order.files);
        return processed(*copier);
    }
};

}  // namespace

JobEngine systemEngine(std::shared_ptr<JobJournal> journal) {
    return {.fileOps = std::make_shared<SystemFileOperations>(), .journal = std::move(journal)};
}

FinishedJob JobRunner::run(JobOrder order, const Watch& watch, std::stop_token stop) const {
    const journal::Job job = startedJob(order.tool->id, order.files);
    const ToolWork work = protectedWork(*order.tool, order.settings, order.secrets, pool_);
    const auto journal = std::make_shared<JournalFile>(journalFolder(), job);
    JobResult result = std::visit(Run{systemEngine(journal), order, watch, std::move(stop)}, work);
    const bool hasEntry = leftAnything(result);
    // A job that could not be logged is found by its journal at the next start.
    if (!hasEntry || ActivityStore(systemEngine()).add(activityEntry(job, result))) journal->forget();
    return {.result = std::move(result), .activityID = hasEntry ? job.id : ""};
}

JobPlan JobRunner::plan(const JobOrder& order) const {
    const ToolWork work = order.tool->makeWork(order.settings, order.secrets);
    const JobEngine engine = systemEngine();
    if (const auto* processor = std::get_if<Processor>(&work)) {
        return engine.plan(order.files, **processor, order.configuration);
    }
    if (const auto* combiner = std::get_if<Combiner>(&work)) {
        return engine.planCombined(order.files, **combiner, order.configuration);
    }
    const auto copier = std::get<RenamerPointer>(work)->copier(order.files);
    return engine.plan(order.files, *copier, order.configuration);
}

}  // namespace tamble
