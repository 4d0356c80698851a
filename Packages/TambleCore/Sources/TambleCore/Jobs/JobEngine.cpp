#include <TambleCore/Jobs/ItemProcessing.h>
#include <TambleCore/Jobs/JobEngine.h>
#include <TambleCore/Jobs/SavingPhase.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Failure.h>
#include <TambleCore/Support/Log.h>
#include <TambleCore/Support/PathKey.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace tamble {
namespace {

constexpr Log engineLog("engine");

using Originals = SavePlanner::Originals;

class Stopwatch {
  public:
    double seconds() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }

  private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point start_ = Clock::now();
};

/// The location that a tool really saves to.
SaveLocation effective(SaveLocation location, Originals originals) {
    if (auto* folder = std::get_if<location::Folder>(&location)) folder->value = standardized(folder->value);
    if (originals == Originals::mayBeReplaced ||
        !std::holds_alternative<location::ReplaceOriginals>(location)) {
        return location;
    }
    return location::NextToOriginal{};
}

void logIfNotReplacing(const SaveLocation& asked, const SaveLocation& location) {
    if (asked.index() != location.index()) {
        engineLog.notice("This tool never replaces originals; saving next to them instead");
    }
}

std::string described(const SaveLocation& location) {
    if (const auto* folder = std::get_if<location::Folder>(&location)) return privately(folder->value);
    return privately(std::visit([](const auto& chosen) { return std::string(chosen.caseName); }, location));
}

Originals originalsOf(const FileProcessor& processor) {
    return processor.canReplaceOriginals() ? Originals::mayBeReplaced : Originals::stay;
}

/// How an item ended that is not saved (yet): what only waits to be saved is as good as cancelled until it
/// is.
ItemOutcome itemOutcome(StageOutcome ended) {
    return std::visit(
        [](auto&& stage) -> ItemOutcome {
            if constexpr (std::same_as<std::remove_cvref_t<decltype(stage)>, Staged>) {
                return outcome::Cancelled{};
            } else {
                return std::forward<decltype(stage)>(stage);
            }
        },
        std::move(ended));
}

JobResult resultOf(std::vector<InputFile> files, std::vector<StageOutcome> outcomes) {
    JobResult result;
    result.items.reserve(files.size());
    for (std::size_t i = 0; i < files.size(); ++i) {
        result.items.push_back({std::move(files[i]), itemOutcome(std::move(outcomes[i]))});
    }
    return result;
}

template <typename Outcome>
std::ptrdiff_t countOf(const JobResult& result) {
    return std::ranges::count_if(
        result.items, [](const ItemResult& item) { return std::holds_alternative<Outcome>(item.outcome); });
}

void logFinished(const JobResult& result) {
    engineLog.notice("Job finished: {} saved, {} skipped, {} failed in {:.2f}s",
                     countOf<outcome::Done>(result), countOf<outcome::Skipped>(result),
                     countOf<outcome::Failed>(result), result.duration);
}

PlannedOutcome widened(SavePlanner::Decision decision) {
    return std::visit(
        [](auto&& settled) -> PlannedOutcome { return std::forward<decltype(settled)>(settled); },
        std::move(decision));
}

/// What the tool throws while it is asked becomes the item's outcome, as it would in the job.
template <typename Answer>
PlannedOutcome plannedOutcome(const Answer& answer) {
    try {
        return answer();
    } catch (const Failure& failure) {
        return outcome::Failed{{.code = failure.code(), .detail = failure.sentence()}};
    } catch (const std::exception& error) {
        return outcome::Failed{{.code = "unexpected", .detail = causeOf(error)}};
    }
}

}  // namespace

int JobConfiguration::defaultConcurrency() {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()) - 1, 1, 4);
}

JobResult JobEngine::run(std::vector<InputFile> files, const FileProcessor& processor,
                         const JobConfiguration& configuration, const ProgressCallback& onProgress,
                         std::stop_token stop) const {
    const Stopwatch watch;
    const Originals originals = originalsOf(processor);
    const OutputPlanner outputs{effective(configuration.location, originals)};
    logIfNotReplacing(configuration.location, outputs.location);
    engineLog.notice("Job started: {} files, location {}, clash {}", files.size(),
                     described(outputs.location), caseName(configuration.clashPolicy));

    removeStaleStagingFolders();
    StagingArea staging;
    ProgressTracker tracker(static_cast<int>(files.size()), onProgress);
    std::vector<StageOutcome> outcomes = ItemProcessing{outputs, staging, tracker, stop}.processAll(
        files, processor, configuration.maxConcurrent);
    if (stop.stop_requested() && !files.empty()) {
        engineLog.notice("Job cancelled before saving; nothing was saved");
        JobResult result = resultOf(std::move(files), std::move(outcomes));
        result.wasCancelled = true;
        staging.removeAll();
        result.duration = watch.seconds();
        return result;
    }

    tracker.saving(0);
    SavePlanner planner(outputs.location, configuration.clashPolicy, originals, files);
    SavingPhase saving(*fileOps, journal.get(), planner, configuration.clashPolicy, staging);
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (const auto* staged = std::get_if<Staged>(&outcomes[i]))
            saving.plan(i, files[i], processor.outputName(files[i]), *staged);
    }
    JobResult result = resultOf(std::move(files), std::move(outcomes));
    int dealtWith = 0;
    saving.saveAll([&](std::size_t index, ItemOutcome itemOutcome) {
        result.items[index].outcome = std::move(itemOutcome);
        tracker.saving(++dealtWith);
    });
    result.undo = saving.finish();
    staging.removeAll();
    tracker.finishJob();
    result.duration = watch.seconds();
    logFinished(result);
    return result;
}

JobResult JobEngine::runCombined(std::vector<InputFile> files, const FileCombiner& combiner,
                                 const JobConfiguration& configuration, const ProgressCallback& onProgress,
                                 std::stop_token stop) const {
    const Stopwatch watch;
    const OutputPlanner outputs{effective(configuration.location, Originals::stay)};
    logIfNotReplacing(configuration.location, outputs.location);
    engineLog.notice("Combine job started: {} files", files.size());
    if (files.empty()) return {};

    removeStaleStagingFolders();
    StagingArea staging;
    ProgressTracker tracker(1, onProgress);
    StageOutcome combined = ItemProcessing{outputs, staging, tracker, stop}.combine(files, combiner);
    JobResult result;
    ItemOutcome common = outcome::Cancelled{};
    if (stop.stop_requested()) {
        engineLog.notice("Combine job cancelled before saving; nothing was saved");
        result.wasCancelled = true;
    } else if (const auto* staged = std::get_if<Staged>(&combined)) {
        tracker.saving(0);
        SavePlanner planner(outputs.location, configuration.clashPolicy, Originals::stay, files);
        SavingPhase saving(*fileOps, journal.get(), planner, configuration.clashPolicy, staging);
        saving.plan(0, files.front(), combiner.outputName(files), *staged);
        saving.saveAll([&](std::size_t, ItemOutcome saved) { common = std::move(saved); });
        result.undo = saving.finish();
    } else {
        common = itemOutcome(std::move(combined));
        if (const auto* failed = std::get_if<outcome::Failed>(&common)) {
            engineLog.error("Combine failed: {}", privately(failed->value.detail));
        }
    }
    for (InputFile& file : files) result.items.push_back({std::move(file), common});
    staging.removeAll();
    if (!result.wasCancelled) tracker.finishJob();
    result.duration = watch.seconds();
    if (!result.wasCancelled) {
        const bool isSaved = std::holds_alternative<outcome::Done>(common);
        engineLog.notice("Combine job finished: {} in {:.2f}s", isSaved ? "saved" : "not saved",
                         result.duration);
    }
    return result;
}

JobPlan JobEngine::plan(std::span<const InputFile> files, const FileProcessor& processor,
                        const JobConfiguration& configuration) const {
    const Originals originals = originalsOf(processor);
    SavePlanner planner(effective(configuration.location, originals), configuration.clashPolicy, originals,
                        files);
    JobPlan plan;
    plan.items.reserve(files.size());
    for (const InputFile& file : files) {
        plan.items.push_back(plannedOutcome([&]() -> PlannedOutcome {
            if (auto reason = processor.skipReason(file)) return outcome::Skipped{std::move(*reason)};
            return widened(planner.next(file, processor.outputName(file)));
        }));
    }
    return plan;
}

JobPlan JobEngine::planCombined(std::span<const InputFile> files, const FileCombiner& combiner,
                                const JobConfiguration& configuration) const {
    if (files.empty()) return {};
    SavePlanner planner(effective(configuration.location, Originals::stay), configuration.clashPolicy,
                        Originals::stay, files);
    return {
        {plannedOutcome([&] { return widened(planner.next(files.front(), combiner.outputName(files))); })}};
}

}  // namespace tamble
