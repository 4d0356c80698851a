#include <Tamble/Worker/RequestWork.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <new>
#include <system_error>

namespace tamble {
namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds betweenReports{100};

const ToolDefinition& tool(const JobRequest& job, const ToolLookup& tools) {
    const auto* definition = tools(job.toolID);
    if (definition == nullptr) throw std::runtime_error("The worker has no tool “" + job.toolID + "”.");
    return *definition;
}

template <typename Work>
const Work& workOf(const ToolWork& work) {
    const auto* wanted = std::get_if<std::unique_ptr<Work>>(&work);
    if (wanted == nullptr) throw std::runtime_error("The tool does not work in this way.");
    return **wanted;
}

/// Answers each kind of request; throws what the tool throws.
struct Worker {
    const ToolLookup& tools;
    const WorkContext& context;

    WorkerReply operator()(const request::Process& request) const {
        const auto work = tool(request.job, tools).makeWork(request.job.settings, {request.password});
        return doneBy([&](const WorkContext& noting) {
            workOf<FileProcessor>(work).process(inputFile(request.file), request.destination, noting);
        });
    }
    WorkerReply operator()(const request::Combine& request) const {
        const auto work = tool(request.job, tools).makeWork(request.job.settings, {request.password});
        return doneBy([&](const WorkContext& noting) {
            workOf<FileCombiner>(work).combine(inputFiles(request.files), request.destination, noting);
        });
    }
    WorkerReply operator()(const request::Estimate& request) const {
        const auto& estimate = tool(request.job, tools).estimate;
        if (!estimate) return reply::Estimated{};
        return reply::Estimated{estimate(inputFiles(request.files), request.job.settings, context.stop)};
    }
    WorkerReply operator()(const request::Stop&) const { return reply::Cancelled{}; }

  private:
    /// Does the work and answers with the note it left.
    template <typename Work>
    reply::Done doneBy(const Work& work) const {
        reply::Done done;
        WorkContext noting = context;
        noting.note = [&done](ItemNote left) { done.note = left; };
        work(noting);
        return done;
    }
};

}  // namespace

WorkerReply replyTo(const WorkerRequest& request, const ToolLookup& tools, const WorkContext& context) {
    try {
        return std::visit(Worker{tools, context}, request);
    } catch (const ProcessorSkip& skip) {
        return reply::Skipped{skip.reason()};
    } catch (const Cancelled&) {
        return reply::Cancelled{};
    } catch (const Failure& failure) {
        return reply::Failed{failure.code(), failure.sentence(), failure.detail()};
    } catch (const std::bad_alloc&) {
        return reply::OutOfMemory{};
    } catch (const std::system_error& error) {
        const auto& category = error.code().category();
        const bool ofSystem = category == std::system_category() || category == std::generic_category();
        return reply::Threw{error.what(), ofSystem ? std::optional(error.code().value()) : std::nullopt};
    } catch (const std::exception& error) {
        return reply::Threw{error.what()};
    } catch (...) {
        return reply::Threw{"The tool threw something unknown."};
    }
}

std::function<void(double)> throttledProgress(RequestQueue& queue) {
    auto next = std::make_shared<std::atomic<Clock::rep>>(0);
    return [&queue, next](double fraction) {
        const auto now = Clock::now().time_since_epoch();
        auto due = next->load();
        // Of several threads that report at once, one gets through.
        if (!std::isfinite(fraction) || now.count() < due ||
            !next->compare_exchange_strong(due, (now + betweenReports).count()))
            return;
        queue.reply(reply::Progress{fraction});
    };
}

}  // namespace tamble
