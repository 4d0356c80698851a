#include <TambleCore/Jobs/ItemProcessing.h>
#include <TambleCore/Jobs/OutputAttributes.h>
#include <TambleCore/Jobs/WatchedInput.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Failure.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>

namespace tamble {
namespace {

constexpr Log engineLog("engine");

outcome::Failed failed(std::string code, std::string detail) {
    return {{.stage = ItemFailure::Stage::processing, .code = std::move(code), .detail = std::move(detail)}};
}

outcome::Failed unexpected(const std::string& cause) {
    return failed("unexpected", "Something unexpected went wrong: " + cause);
}

/// The outcome of work that answers with its own; whatever it throws becomes one.
template <typename Work>
StageOutcome outcomeOf(const Work& work, const std::stop_token& stop) {
    try {
        return work();
    } catch (const ProcessorSkip& skipped) {
        return outcome::Skipped{skipped.reason()};
    } catch (const Cancelled&) {
        if (stop.stop_requested()) return outcome::Cancelled{};
        return unexpected("it was cancelled by itself.");
    } catch (const Failure& failure) {
        if (!failure.detail().empty())
            engineLog.error("Item failed: {} ({})", failure.code(), failure.detail());
        return failed(failure.code(), failure.sentence());
    } catch (const std::exception& error) {
        return unexpected(causeOf(error));
    } catch (...) {
        return unexpected("no cause was given.");
    }
}

}  // namespace

std::vector<StageOutcome> ItemProcessing::processAll(std::span<const InputFile> files,
                                                     const FileProcessor& processor,
                                                     int maxConcurrent) const {
    const auto process = [&](std::size_t index) -> StageOutcome {
        const InputFile& file = files[index];
        if (stop.stop_requested()) return outcome::Cancelled{};
        const WatchedInput input(file, WatchedInput::Subject::thisFile);
        if (auto reason = processor.skipReason(file)) return outcome::Skipped{std::move(*reason)};
        const auto target = outputs.intendedURL(file, processor.outputName(file));
        std::filesystem::path place;
        try {
            place = staging.makePlace(index, target);
        } catch (const std::filesystem::filesystem_error&) {
            return failed("cannotCreateFolder", "No staging folder");
        }
        const auto report = [&](double fraction) { tracker.update(index, fraction); };
        std::optional<ItemNote> note;
        const WorkContext context{
            .progress = report, .stop = stop, .note = [&note](ItemNote left) { note = left; }};
        watching({&input, 1}, [&] { processor.process(file, place, context); });
        if (stop.stop_requested()) return outcome::Cancelled{};
        if (!isThere(place)) return failed("noOutput", "Processor finished without writing a file");
        keepAttributes({&file, 1}, place,
                       processor.keepsModificationTime() ? OutputTime::ofOriginal : OutputTime::now);
        return Staged{.original = input.original(), .note = note};
    };

    std::vector<StageOutcome> outcomes(files.size());
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t index = next++; index < files.size(); index = next++) {
            outcomes[index] = outcomeOf([&] { return process(index); }, stop);
            if (!std::holds_alternative<Staged>(outcomes[index])) staging.discard(index);
            tracker.finish(index);
        }
    };
    {
        std::vector<std::jthread> helpers;
        const auto workers = std::min(files.size(), static_cast<std::size_t>(std::max(maxConcurrent, 1)));
        try {
            while (helpers.size() + 1 < workers) helpers.emplace_back(work);
        } catch (const std::system_error&) {
            // Fewer threads than wanted do the same work.
        }
        work();
    }
    return outcomes;
}

StageOutcome ItemProcessing::combine(std::span<const InputFile> files, const FileCombiner& combiner) const {
    const auto work = [&]() -> StageOutcome {
        if (stop.stop_requested()) return outcome::Cancelled{};
        std::vector<WatchedInput> inputs;
        for (const InputFile& file : files) inputs.emplace_back(file, WatchedInput::Subject::byName);
        const auto target = outputs.intendedURL(files.front(), combiner.outputName(files));
        std::filesystem::path place;
        try {
            place = staging.makePlace(0, target);
        } catch (const std::filesystem::filesystem_error&) {
            return failed("cannotCreateFolder", "No staging folder");
        }
        const auto report = [&](double fraction) { tracker.update(0, fraction); };
        std::optional<ItemNote> note;
        const WorkContext context{
            .progress = report, .stop = stop, .note = [&note](ItemNote left) { note = left; }};
        watching(inputs, [&] { combiner.combine(files, place, context); });
        if (stop.stop_requested()) return outcome::Cancelled{};
        if (!isThere(place)) return failed("noOutput", "Combiner finished without writing a file");
        keepAttributes(files, place, OutputTime::now);
        return Staged{.note = note};
    };
    StageOutcome result = outcomeOf(work, stop);
    tracker.finish(0);
    return result;
}

}  // namespace tamble
