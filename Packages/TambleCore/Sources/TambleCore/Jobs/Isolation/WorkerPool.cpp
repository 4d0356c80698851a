#include <TambleCore/Jobs/Isolation/Conversation.h>
#include <TambleCore/Jobs/Isolation/WorkerExecutable.h>
#include <TambleCore/Jobs/Isolation/WorkerPool.h>
#include <TambleCore/Jobs/Isolation/WorkerProcess.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>
#include <system_error>

#include <unistd.h>

namespace tamble {
namespace {

constexpr Log workerLog("worker");

/// Whether a worker that was started with the one permit can do what takes the other. How long it may be
/// silent is a matter of each call.
bool suits(const WorkerPermit& given, const WorkerPermit& wanted) {
    return given.writable == wanted.writable && given.needs.startsPrograms == wanted.needs.startsPrograms &&
           given.needs.memory == wanted.needs.memory && given.environment == wanted.environment;
}

}  // namespace

std::uint64_t WorkerLimits::defaultMemory() {
    constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30U;
    const auto pages = static_cast<std::uint64_t>(std::max(::sysconf(_SC_PHYS_PAGES), 0L));
    const auto pageSize = static_cast<std::uint64_t>(std::max(::sysconf(_SC_PAGESIZE), 0L));
    return std::clamp(pages * pageSize / 2, gibibyte, 4 * gibibyte);
}

WorkerLost::WorkerLost(std::string detail) : detail_(std::move(detail)) {}
WorkerLost::~WorkerLost() = default;

WorkerUnavailable::WorkerUnavailable(std::string detail)
    : Failure("workerUnavailable", "A part of Tamble couldn't be started. Install Tamble again.",
              std::move(detail)) {}
WorkerUnavailable::~WorkerUnavailable() = default;

WorkerPool::WorkerPool(WorkerLimits limits, std::filesystem::path program)
    : limits_(limits), program_(std::move(program)) {}

WorkerPool::~WorkerPool() = default;

void WorkerPool::setEnvironment(Environment environment) {
    const std::scoped_lock lock(mutex_);
    environment_ = std::move(environment);
}

WorkerReply WorkerPool::perform(const WorkerRequest& request, const WorkerPermit& permit,
                                const WorkContext& context) {
    context.throwIfStopped();
    auto worker = take(completed(permit));
    WorkerLimits limits = limits_;
    limits.processor = std::min(limits.processor, permit.needs.silence.value_or(limits.processor));
    // A worker whose conversation throws is not used again.
    auto reply = Conversation(*worker, limits, context).about(request);
    giveBack(std::move(worker));
    return reply;
}

WorkerPermit WorkerPool::completed(WorkerPermit permit) {
    const std::scoped_lock lock(mutex_);
    permit.environment = environment_;
    return permit;
}

std::unique_ptr<WorkerProcess> WorkerPool::take(const WorkerPermit& permit) {
    std::vector<std::unique_ptr<WorkerProcess>> discarded;
    {
        const std::scoped_lock lock(mutex_);
        // One that died or spoke while nobody asked is of no use.
        const auto spoilt =
            std::ranges::partition(idle_, [](const auto& worker) { return worker->isQuiet(); });
        std::ranges::move(spoilt, std::back_inserter(discarded));
        idle_.erase(spoilt.begin(), spoilt.end());
        const auto fitting =
            std::ranges::find_if(idle_, [&](const auto& worker) { return suits(worker->permit(), permit); });
        if (fitting != idle_.end()) {
            auto worker = std::move(*fitting);
            idle_.erase(fitting);
            return worker;
        }
        // Its place is taken by the new one, so that there are never more than calls at the same time.
        if (idle_.size() > limits_.spare) {
            discarded.push_back(std::move(idle_.front()));
            idle_.erase(idle_.begin());
        }
    }
    return startWorker(permit);
}

std::unique_ptr<WorkerProcess> WorkerPool::startWorker(const WorkerPermit& permit) const {
    const auto program = program_.empty() ? workerExecutable() : program_;
    if (!program) throw WorkerUnavailable("The worker program is missing.");
    try {
        auto worker = std::make_unique<WorkerProcess>(
            *program, permit, std::min(limits_.memory, permit.needs.memory.value_or(limits_.memory)));
        const auto ready = Conversation(*worker, limits_, {}).greeting();
        workerLog.notice("Worker started; files confined: {}, calls confined: {}", ready.confinesFiles,
                         ready.confinesCalls);
        return worker;
    } catch (const std::system_error& error) {
        throw WorkerUnavailable(error.what());
    } catch (const WorkerLost& error) {
        throw WorkerUnavailable(error.what());
    }
}

void WorkerPool::giveBack(std::unique_ptr<WorkerProcess> worker) {
    const std::scoped_lock lock(mutex_);
    idle_.push_back(std::move(worker));
}

}  // namespace tamble
