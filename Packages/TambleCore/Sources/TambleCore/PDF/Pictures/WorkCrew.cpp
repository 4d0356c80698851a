#include <TambleCore/PDF/Pictures/WorkCrew.h>

#include <algorithm>
#include <chrono>

namespace tamble::pdf {
namespace {

/// Half of what work on a PDF may take; the document takes the rest.
constexpr std::size_t mostMemory = std::size_t{384} << 20U;
/// For small pieces: enough to keep every core busy.
constexpr std::size_t piecesPerThread = 64;
constexpr auto stopInterval = std::chrono::milliseconds(50);

}  // namespace

WorkCrew::WorkCrew(const WorkContext& context) : context_(context) {
    const unsigned count = std::clamp(std::thread::hardware_concurrency(), 1U, 16U);
    for (unsigned i = 0; i < count; ++i)
        threads_.emplace_back([this](const std::stop_token& stop) { run(stop); });
}

WorkCrew::~WorkCrew() {
    for (auto& thread : threads_) thread.request_stop();
    threads_.clear();
}

void WorkCrew::run(const std::stop_token& stop) {
    for (;;) {
        Piece piece;
        {
            std::unique_lock lock(mutex_);
            hasWork_.wait(lock, stop, [this] { return !waiting_.empty(); });
            if (stop.stop_requested()) return;
            piece = std::move(waiting_.front());
            waiting_.pop_front();
        }
        Result result{.memory = piece.memory};
        try {
            result.finish = piece.work(stop);
        } catch (...) {
            result.error = std::current_exception();
        }
        piece.work = nullptr;
        const std::lock_guard lock(mutex_);
        results_.push_back(std::move(result));
        hasResult_.notify_one();
    }
}

void WorkCrew::makeRoom(std::size_t memory, std::size_t mostPieces) {
    std::unique_lock lock(mutex_);
    for (;;) {
        while (!results_.empty()) {
            const Result result = std::move(results_.front());
            results_.pop_front();
            lock.unlock();
            if (result.error) std::rethrow_exception(result.error);
            if (result.finish) result.finish();
            lock.lock();
            memory_ -= result.memory;
            --pieces_;
        }
        if (pieces_ == 0 || (pieces_ < mostPieces && memory_ + memory <= mostMemory)) return;
        hasResult_.wait_for(lock, stopInterval);
        context_.throwIfStopped();
    }
}

void WorkCrew::add(std::size_t memory, Work work) {
    context_.throwIfStopped();
    makeRoom(memory, piecesPerThread * threads_.size());
    const std::lock_guard lock(mutex_);
    waiting_.push_back({memory, std::move(work)});
    memory_ += memory;
    ++pieces_;
    hasWork_.notify_one();
}

void WorkCrew::finish() {
    makeRoom(0, 0);
}

}  // namespace tamble::pdf
