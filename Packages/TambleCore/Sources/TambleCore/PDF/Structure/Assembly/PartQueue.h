#pragma once

#include <TambleCore/PDF/Structure/Assembly/AssemblyPart.h>

#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace tamble::pdf {

/// Opens parts and collects their objects ahead of who writes them, on all processor cores, but not so far
/// ahead that they fill the memory.
class PartQueue {
  public:
    using Open = std::function<std::unique_ptr<AssemblyPart>(std::size_t index)>;

    /// `open` is called by several threads.
    PartQueue(std::size_t count, Open open, std::stop_token stop);
    ~PartQueue();
    PartQueue(const PartQueue&) = delete;
    PartQueue& operator=(const PartQueue&) = delete;

    /// How many parts may be opened and not yet written without anybody waiting for anybody.
    std::size_t lead() const noexcept { return lead_; }

    /// The part, once it is open; nobody else uses it until collect(). Throws what opening it threw.
    AssemblyPart& opened(std::size_t index);
    /// Has the part's objects collected.
    void collect(std::size_t index);
    /// The part's objects, once they are collected. Throws what that threw.
    CarriedObjects objects(std::size_t index);
    /// The part is written: it can be closed, and another one opened.
    void discard(std::size_t index);

  private:
    enum class State { waiting, opening, open, ready, collecting, collected, written, closed };
    struct Part {
        State state = State::waiting;
        std::unique_ptr<AssemblyPart> part;
        std::optional<CarriedObjects> objects;
        std::exception_ptr failure;
    };
    using Lock = std::unique_lock<std::mutex>;

    void work(const std::stop_token& end);
    std::size_t next() const;
    void advance(std::size_t index, Lock& lock);
    Part& waitFor(std::size_t index, State state, Lock& lock);
    void set(std::size_t index, State state);

    Open open_;
    std::stop_token stop_;
    std::size_t lead_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::vector<Part> parts_;
    /// How many are written, in order.
    std::size_t written_ = 0;
    /// The last member: the threads use all others.
    std::vector<std::jthread> threads_;
};

}  // namespace tamble::pdf
