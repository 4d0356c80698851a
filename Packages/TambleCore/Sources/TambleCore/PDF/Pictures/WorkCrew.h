#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace tamble::pdf {

/// Does pieces of work on all cores, for one thread that hands them out and takes the results: what belongs
/// to a document may be touched by that one alone.
class WorkCrew {
  public:
    /// Runs on the thread that hands out work.
    using Finish = std::function<void()>;
    /// Runs on any thread; obeys the token within 0.1 s.
    using Work = std::function<Finish(const std::stop_token&)>;

    explicit WorkCrew(const WorkContext& context);
    /// Gives up what isn't done.
    ~WorkCrew();
    WorkCrew(const WorkCrew&) = delete;
    WorkCrew& operator=(const WorkCrew&) = delete;

    /// Waits until there is room for the `memory` that the work takes; does what was finished meanwhile.
    /// Throws what work threw; Cancelled.
    void add(std::size_t memory, Work work);
    /// Waits for all work.
    void finish();

  private:
    struct Piece {
        std::size_t memory = 0;
        Work work;
    };
    struct Result {
        std::size_t memory = 0;
        Finish finish;
        std::exception_ptr error;
    };

    void run(const std::stop_token& stop);
    /// Takes results until there is room for so much more.
    void makeRoom(std::size_t memory, std::size_t mostPieces);

    const WorkContext& context_;
    std::mutex mutex_;
    std::condition_variable_any hasWork_;
    std::condition_variable hasResult_;
    std::deque<Piece> waiting_;
    std::deque<Result> results_;
    /// Of what is waiting, being done, or done but not taken.
    std::size_t memory_ = 0;
    std::size_t pieces_ = 0;
    /// The last member: its threads use the others.
    std::vector<std::jthread> threads_;
};

}  // namespace tamble::pdf
