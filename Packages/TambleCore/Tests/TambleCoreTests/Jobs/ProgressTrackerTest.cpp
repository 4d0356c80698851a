#include <TambleCore/Jobs/ProgressTracker.h>

#include <thread>

namespace tamble {
namespace {

TEST(ProgressTracker, ClampsForgetsAndThrottles) {
    std::vector<JobProgress> sent;
    const auto start = std::chrono::steady_clock::now();
    ProgressTracker tracker(3, [&](const JobProgress& progress) { sent.push_back(progress); });
    EXPECT_EQ(sent.size(), 1U);
    for (int i = 0; i < 1000; ++i) tracker.update(0, 0.25);
    const auto pauses = (std::chrono::steady_clock::now() - start) / ProgressTracker::shortestPause;
    EXPECT_LE(sent.size(), static_cast<std::size_t>(pauses) + 1);

    std::this_thread::sleep_for(ProgressTracker::shortestPause);
    tracker.update(1, 1.7);
    EXPECT_DOUBLE_EQ(sent.back().partial, 1.25);
    const std::size_t before = sent.size();
    tracker.finish(1);
    EXPECT_EQ(sent.size(), before + 1) << "completions are never held back";
    EXPECT_EQ(sent.back().completed, 1);
    EXPECT_DOUBLE_EQ(sent.back().partial, 0.25);
    tracker.update(1, 0.9);
    tracker.finish(0);
    EXPECT_DOUBLE_EQ(sent.back().partial, 0) << "a fraction after the end is ignored";
    EXPECT_EQ(sent.back().completed, 2);
}

TEST(ProgressTracker, SendsOneMessageAtATimeFromManyThreads) {
    constexpr int threads = 4, itemsEach = 200;
    int lastCompleted = 0;
    ProgressTracker tracker(threads * itemsEach, [&](const JobProgress& progress) {
        // Unguarded on purpose: the tracker promises one call at a time.
        EXPECT_GE(progress.completed, lastCompleted);
        lastCompleted = progress.completed;
    });
    {
        std::vector<std::jthread> workers;
        for (std::size_t t = 0; t < threads; ++t) {
            workers.emplace_back([&tracker, t] {
                for (std::size_t i = t * itemsEach; i < (t + 1) * itemsEach; ++i) {
                    tracker.update(i, 0.5);
                    tracker.finish(i);
                }
            });
        }
    }
    EXPECT_EQ(lastCompleted, threads * itemsEach);
}

}  // namespace
}  // namespace tamble
