#include <TambleCore/Jobs/Isolation/Conversation.h>
#include <TambleCore/Jobs/Isolation/WorkerProcess.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>
#include <stop_token>

namespace tamble {
namespace {

constexpr Log workerLog("worker");

/// How often a silent worker is looked at.
constexpr std::chrono::milliseconds lookEvery{500};
/// Less processor time than this between two looks is no sign of work.
constexpr std::chrono::milliseconds leastWork{5};

}  // namespace

Conversation::Conversation(WorkerProcess& worker, const WorkerLimits& limits, const WorkContext& context)
    : worker_(worker), limits_(limits), context_(context) {
    markAlive();
}

reply::Ready Conversation::greeting() {
    const auto started = Clock::now();
    for (;;) {
        try {
            if (const auto reply = worker_.nextReply())
                return std::get<reply::Ready>(decodeJson<WorkerReply>(*reply));
        } catch (const std::exception& error) {
            lose(error.what());
        }
        if (!worker_.wait(lookEvery)) lose("it left at its start");
        if (Clock::now() - started > limits_.starting) lose("it does not start");
    }
}

WorkerReply Conversation::about(const WorkerRequest& request) {
    const std::stop_callback wakeUp(context_.stop, [this] { worker_.wake(); });
    if (!worker_.send(encodeJson(request))) lose("it takes no request");
    for (;;) {
        auto reply = nextReply();
        if (std::holds_alternative<reply::Ready>(reply)) lose("it starts anew");
        const auto* progress = std::get_if<reply::Progress>(&reply);
        if (progress == nullptr) return reply;
        markAlive();
        context_.report(std::clamp(progress->value, 0.0, 1.0));
    }
}

WorkerReply Conversation::nextReply() {
    for (;;) {
        try {
            if (const auto reply = worker_.nextReply()) return decodeJson<WorkerReply>(*reply);
        } catch (const DecodeError& error) {
            lose(error.what());
        }
        if (context_.stop.stop_requested()) obeyStop();
        const auto longest = std::min({lookEvery, limits_.stopping, limits_.idle});
        if (!worker_.wait(longest)) lose("its connection closed");
        watchWork();
    }
}

void Conversation::obeyStop() {
    const auto now = Clock::now();
    if (!stopAskedAt_) {
        stopAskedAt_ = now;
        worker_.send(encodeJson(WorkerRequest(request::Stop{})));
    } else if (now - *stopAskedAt_ > limits_.stopping) {
        workerLog.notice("A worker did not stop: it {}", worker_.end());
        throw Cancelled();
    }
}

void Conversation::watchWork() {
    const auto now = Clock::now();
    const auto processor = worker_.processorTime();
    if (processor - processorAtLastReport_ > limits_.processor) lose("it works without end");
    if (processor - processorAtLastSign_ >= leastWork) {
        lastSign_ = now;
        processorAtLastSign_ = processor;
    } else if (now - lastSign_ > limits_.idle) {
        lose("it waits without end");
    }
}

void Conversation::markAlive() {
    lastSign_ = Clock::now();
    processorAtLastSign_ = processorAtLastReport_ = worker_.processorTime();
}

void Conversation::lose(std::string_view why) {
    const auto detail = fmt::format("The worker is lost, {}: it {}.", why, worker_.end());
    workerLog.error("{}", detail);
    throw WorkerLost(detail);
}

}  // namespace tamble
