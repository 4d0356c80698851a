#include <TambleCore/PDF/Structure/Assembly/PartQueue.h>

#include <algorithm>
#include <utility>

namespace tamble::pdf {
namespace {

std::size_t threadCount(std::size_t parts) {
    constexpr std::size_t most = 8;
    return std::min(
        {parts, most, static_cast<std::size_t>(std::max(std::thread::hardware_concurrency(), 1U))});
}

}  // namespace

PartQueue::PartQueue(std::size_t count, Open open, std::stop_token stop)
    : open_(std::move(open)), stop_(std::move(stop)), lead_(2 * threadCount(count) + 1), parts_(count) {
    for (std::size_t i = threadCount(count); i > 0; --i)
        threads_.emplace_back([this](const std::stop_token& end) { work(end); });
}

PartQueue::~PartQueue() {
    for (auto& thread : threads_) thread.request_stop();
    threads_.clear();
}

AssemblyPart& PartQueue::opened(std::size_t index) {
    Lock lock(mutex_);
    return *waitFor(index, State::open, lock).part;
}

void PartQueue::collect(std::size_t index) {
    const Lock lock(mutex_);
    set(index, State::ready);
}

CarriedObjects PartQueue::objects(std::size_t index) {
    Lock lock(mutex_);
    return *std::exchange(waitFor(index, State::collected, lock).objects, std::nullopt);
}

void PartQueue::discard(std::size_t index) {
    const Lock lock(mutex_);
    written_ = index + 1;
    set(index, State::written);
}

PartQueue::Part& PartQueue::waitFor(std::size_t index, State state, Lock& lock) {
    Part& part = parts_.at(index);
    changed_.wait(lock, [&] { return part.state == state || part.failure; });
    if (part.failure) std::rethrow_exception(part.failure);
    return part;
}

void PartQueue::set(std::size_t index, State state) {
    parts_[index].state = state;
    changed_.notify_all();
}

/// What can be done now, the earliest part first; the number of parts when there is nothing.
std::size_t PartQueue::next() const {
    const std::size_t end = std::min(parts_.size(), written_ + lead_);
    for (std::size_t i = 0; i < end; ++i) {
        const State state = parts_[i].state;
        if (state == State::ready || state == State::written ||
            (state == State::waiting && !parts_[i].failure))
            return i;
    }
    return parts_.size();
}

void PartQueue::work(const std::stop_token& end) {
    Lock lock(mutex_);
    while (changed_.wait(lock, end, [this] { return next() < parts_.size(); })) advance(next(), lock);
}

void PartQueue::advance(std::size_t index, Lock& lock) {
    Part& part = parts_[index];
    // Which of the three, and what follows it.
    const State before = part.state;
    const State after = before == State::waiting ? State::open
                        : before == State::ready ? State::collected
                                                 : State::closed;
    part.state = before == State::waiting ? State::opening
                 : before == State::ready ? State::collecting
                                          : State::closed;
    auto closing = before == State::written ? std::move(part.part) : nullptr;
    lock.unlock();
    std::exception_ptr failure;
    std::unique_ptr<AssemblyPart> opened;
    std::optional<CarriedObjects> objects;
    try {
        if (before == State::waiting) opened = open_(index);
        if (before == State::ready) objects = part.part->objects(stop_);
    } catch (...) {
        failure = std::current_exception();
    }
    closing.reset();
    lock.lock();
    if (opened) part.part = std::move(opened);
    if (objects) part.objects = std::move(objects);
    part.failure = failure;
    set(index, after);
}

}  // namespace tamble::pdf
