#pragma once

#include <TambleCore/PDF/Structure/Assembly/AssemblyPart.h>

#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>

namespace tamble::pdf {

/// Collects the objects of parts ahead of who writes them, on all processor cores, but not so far ahead that
/// they fill the memory.
class PartQueue {
  public:
    /// The parts must stay as they are until their objects were taken.
    PartQueue(const std::vector<std::unique_ptr<AssemblyPart>>& parts, std::stop_token stop);
    ~PartQueue();
    PartQueue(const PartQueue&) = delete;
    PartQueue& operator=(const PartQueue&) = delete;

    /// The objects of the next part, in order. Throws what collecting them threw.
    CarriedObjects next();
    /// Takes a part that is written; to give back all its objects takes a while, too.
    void discard(std::unique_ptr<AssemblyPart> part);

  private:
    struct Result {
        std::optional<CarriedObjects> objects;
        std::exception_ptr failure;
    };
    void work(const std::stop_token& end);
    void collectNext(std::unique_lock<std::mutex>& lock);

    const std::vector<std::unique_ptr<AssemblyPart>>& parts_;
    std::stop_token stop_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::vector<Result> results_;
    std::vector<std::unique_ptr<AssemblyPart>> discarded_;
    /// How many parts may be collected before they are taken.
    std::size_t ahead_;
    std::size_t begun_ = 0;
    std::size_t taken_ = 0;
    /// The last member: the threads use all others.
    std::vector<std::jthread> threads_;
};

}  // namespace tamble::pdf
