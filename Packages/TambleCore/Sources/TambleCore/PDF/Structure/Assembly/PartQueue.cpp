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

PartQueue::PartQueue(const std::vector<std::unique_ptr<AssemblyPart>>& parts, std::stop_token stop)
    : parts_(parts),
      stop_(std::move(stop)),
      results_(parts.size()),
      ahead_(2 * threadCount(parts.size()) + 2) {
    for (std::size_t i = threadCount(parts.size()); i > 0; --i)
        threads_.emplace_back([this](const std::stop_token& end) { work(end); });
}

PartQueue::~PartQueue() {
    for (auto& thread : threads_) thread.request_stop();
    threads_.clear();
}

CarriedObjects PartQueue::next() {
    std::unique_lock lock(mutex_);
    Result& result = results_.at(taken_);
    changed_.wait(lock, [&result] { return result.objects || result.failure; });
    ++taken_;
    changed_.notify_all();
    if (result.failure) std::rethrow_exception(result.failure);
    return *std::exchange(result.objects, std::nullopt);
}

void PartQueue::discard(std::unique_ptr<AssemblyPart> part) {
    const std::scoped_lock lock(mutex_);
    discarded_.push_back(std::move(part));
    changed_.notify_all();
}

void PartQueue::work(const std::stop_token& end) {
    std::unique_lock lock(mutex_);
    const auto mayBegin = [this] { return begun_ < parts_.size() && begun_ < taken_ + ahead_; };
    while (changed_.wait(lock, end, [&] { return mayBegin() || !discarded_.empty(); })) {
        if (mayBegin()) {
            collectNext(lock);
        } else {
            auto part = std::move(discarded_.back());
            discarded_.pop_back();
            lock.unlock();
            part.reset();
            lock.lock();
        }
    }
}

void PartQueue::collectNext(std::unique_lock<std::mutex>& lock) {
    const std::size_t index = begun_++;
    lock.unlock();
    Result result;
    try {
        result.objects = parts_[index]->objects(stop_);
    } catch (...) {
        result.failure = std::current_exception();
    }
    lock.lock();
    results_[index] = std::move(result);
    changed_.notify_all();
}

}  // namespace tamble::pdf
