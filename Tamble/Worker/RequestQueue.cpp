#include <Tamble/Worker/RequestQueue.h>

#include <cstdlib>

namespace tamble {
namespace {

/// Without destructors: a tool may be at work on another thread.
[[noreturn]] void leave() {
    std::_Exit(EXIT_SUCCESS);
}

}  // namespace

RequestQueue::RequestQueue(FileDescriptor connection) : channel_(std::move(connection), longestRequest) {}

void RequestQueue::readUntilEnd() {
    while (channel_.receive()) {
        try {
            while (const auto message = channel_.next()) take(decodeJson<WorkerRequest>(*message));
        } catch (const DecodeError&) {
            leave();
        }
    }
    leave();
}

void RequestQueue::take(WorkerRequest request) {
    if (std::holds_alternative<request::Stop>(request)) {
        stop_.request_stop();
        return;
    }
    stop_ = std::stop_source();
    const std::scoped_lock lock(waiting_);
    entries_.push_back({std::move(request), stop_.get_token()});
    arrival_.notify_one();
}

RequestQueue::Entry RequestQueue::next() {
    std::unique_lock lock(waiting_);
    arrival_.wait(lock, [this] { return !entries_.empty(); });
    auto entry = std::move(entries_.front());
    entries_.pop_front();
    return entry;
}

void RequestQueue::reply(const WorkerReply& reply) {
    const std::scoped_lock lock(sending_);
    if (!channel_.send(encodeJson(reply))) leave();
}

}  // namespace tamble
