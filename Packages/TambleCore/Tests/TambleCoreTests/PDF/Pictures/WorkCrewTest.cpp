#include <TambleCore/PDF/Pictures/RowShrinker.h>
#include <TambleCore/PDF/Pictures/WorkCrew.h>

#include <atomic>
#include <numeric>
#include <set>

#include <gtest/gtest.h>

namespace tamble::pdf {
namespace {

TEST(WorkCrew, FinishesEveryPieceOnTheThreadThatHandsItOut) {
    const WorkContext context;
    WorkCrew crew(context);
    std::multiset<int> finished;
    const auto here = std::this_thread::get_id();
    for (int i = 0; i < 1000; ++i) {
        // Some want more memory than there is for all.
        const std::size_t memory = i % 100 == 0 ? std::size_t{1} << 40U : 1;
        crew.add(memory, [&, i](const std::stop_token&) -> WorkCrew::Finish {
            return [&, i] {
                EXPECT_EQ(std::this_thread::get_id(), here);
                finished.insert(i);
            };
        });
    }
    crew.finish();
    EXPECT_EQ(finished.size(), 1000);
    EXPECT_EQ(std::accumulate(finished.begin(), finished.end(), 0), 999 * 1000 / 2);
}

TEST(WorkCrew, HandsOnFailures) {
    const WorkContext context;
    WorkCrew crew(context);
    crew.add(1, [](const std::stop_token&) -> WorkCrew::Finish { throw std::domain_error("no"); });
    EXPECT_THROW(crew.finish(), std::domain_error);
}

TEST(WorkCrew, GivesUpAtAStopRequest) {
    std::stop_source source;
    const WorkContext context{.progress = {}, .stop = source.get_token()};
    std::atomic<bool> wasStopped = false;
    {
        WorkCrew crew(context);
        crew.add(1, [&](const std::stop_token& stop) -> WorkCrew::Finish {
            source.request_stop();
            while (!stop.stop_requested()) std::this_thread::yield();
            wasStopped = true;
            return {};
        });
        EXPECT_THROW(crew.finish(), Cancelled);
    }
    EXPECT_TRUE(wasStopped);
}

TEST(RowShrinker, KeepsPlainColoursAndHandsOverEveryRow) {
    for (const auto& [from, to] : std::vector<std::pair<PictureShape, PictureShape>>{{{101, 77}, {100, 76}},
                                                                                     {{64, 64}, {1, 1}},
                                                                                     {{1, 500}, {1, 3}},
                                                                                     {{300, 20}, {7, 20}},
                                                                                     {{5, 5}, {5, 5}}}) {
        RowShrinker shrinker(from, to, 3);
        Bytes row;
        for (int x = 0; x < from.width; ++x) row.insert(row.end(), {0, 77, 255});
        int rows = 0;
        for (int y = 0; y < from.height; ++y) {
            shrinker.put(row, [&](ByteView shrunk) {
                ++rows;
                ASSERT_EQ(shrunk.size(), static_cast<std::size_t>(to.width) * 3);
                for (std::size_t at = 0; at < shrunk.size(); at += 3)
                    EXPECT_EQ(Bytes(shrunk.begin() + static_cast<std::ptrdiff_t>(at),
                                    shrunk.begin() + static_cast<std::ptrdiff_t>(at) + 3),
                              (Bytes{0, 77, 255}));
            });
        }
        EXPECT_EQ(rows, to.height);
    }
}

}  // namespace
}  // namespace tamble::pdf
