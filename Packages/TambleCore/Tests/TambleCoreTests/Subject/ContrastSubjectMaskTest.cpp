#include <TambleCore/Images/ConversionError.h>
#include <TambleCore/Images/Subject/ContrastSubjectMask.h>

#include <chrono>
#include <thread>

#include "PaintedPicture.h"

namespace tamble {
namespace {

Colour orange(int x, int y) {
    return {220 - (x + y) % 30, 110, 40};
}

Colour meadow(int x, int y) {
    return {60 + x / 20 % 20, 120 + y / 15 % 30, 70};
}

PaintedPicture discOnMeadow(int width, int height, const Disc& disc) {
    return paint(width, height, 8,
                 [&](int x, int y) { return disc.covers(x, y, width) ? orange(x, y) : meadow(x, y); });
}

TEST(ContrastSubjectMask, cutsOutOneSubjectAtEverySize) {
    const Disc middle;
    const Disc atLowerEdge{.x = 0.45, .y = 0.7, .radius = 0.22};
    for (const auto& [width, height] :
         {std::pair(200, 160), std::pair(640, 480), std::pair(480, 640), std::pair(1500, 1200)}) {
        for (const Disc& disc : {middle, atLowerEdge}) {
            const auto picture = discOnMeadow(width, height, disc);
            const auto mask = ContrastSubjectMask().find(picture.view(), {});
            ASSERT_TRUE(mask) << width << " x " << height;
            ASSERT_EQ(mask->size(), picture.pixels.size() / 3);
            EXPECT_GT(overlap(*mask, picture, disc), 0.97) << width << " x " << height;
        }
    }
}

TEST(ContrastSubjectMask, isFullInsideEmptyOutsideAndSoftBetween) {
    // The photo itself goes from one to the other within six pixels.
    const auto picture = paint(900, 720, 6, [](int x, int y) {
        const double share = std::clamp((183 - std::hypot(x - 450, y - 360)) / 6, 0.0, 1.0);
        Colour colour = meadow(x, y);
        for (std::size_t i = 0; i < 3; ++i)
            colour[i] += static_cast<int>(share * (orange(x, y)[i] - colour[i]));
        return colour;
    });
    const auto mask = ContrastSubjectMask().find(picture.view(), {}).value();
    int between = 0;
    for (std::size_t i = 0; i < mask.size(); ++i) {
        const int x = static_cast<int>(i) % picture.width;
        const int y = static_cast<int>(i) / picture.width;
        const double distance = std::hypot(x - 450, y - 360) - 180;
        if (std::abs(distance) > 20) {
            ASSERT_EQ(mask[i], distance < 0 ? 255 : 0) << x << ", " << y;
        }
        between += mask[i] > 20 && mask[i] < 235 ? 1 : 0;
    }
    // The disc's outline is 1131 pixels long.
    EXPECT_GT(between, 1500);
    EXPECT_LT(between, 8000);
}

TEST(ContrastSubjectMask, fillsSpotsOfTheBackgroundsColourInsideTheSubject) {
    const Disc disc;
    const auto picture = paint(640, 512, 6, [&](int x, int y) {
        const bool spot = std::hypot(x - 300, y - 250) < 8 || std::hypot(x - 350, y - 270) < 8;
        return disc.covers(x, y, 640) && !spot ? orange(x, y) : meadow(x, y);
    });
    const auto mask = ContrastSubjectMask().find(picture.view(), {}).value();
    EXPECT_EQ(mask[250 * 640 + 300], 255);
    EXPECT_EQ(mask[270 * 640 + 350], 255);
}

struct Scene {
    const char* name;
    PaintedPicture picture;
};

TEST(ContrastSubjectMask, findsNothingWhereThereIsNoSubject) {
    const std::vector<Scene> scenes{
        {"one colour", paint(400, 300, 0,
                             [](int, int) {
                                 return Colour{90, 140, 200};
                             })},
        {"faint noise", paint(400, 300, 6,
                              [](int, int) {
                                  return Colour{90, 140, 200};
                              })},
        {"strong noise", paint(400, 300, 120,
                               [](int, int) {
                                   return Colour{128, 128, 128};
                               })},
        {"slope", paint(400, 300, 3,
                        [](int x, int y) {
                            return Colour{x / 2, y / 2, 120};
                        })},
        {"chequers", paint(400, 300, 5,
                           [](int x, int y) {
                               return (x / 20 + y / 20) % 2 == 0 ? Colour{40, 40, 40} : Colour{210, 210, 200};
                           })},
        {"stripes", paint(400, 300, 5,
                          [](int x, int y) {
                              return (x + y) / 25 % 2 == 0 ? Colour{30, 90, 160} : Colour{230, 200, 90};
                          })},
        {"sea and sky", paint(400, 300, 6,
                              [](int x, int y) {
                                  return y < 140 + x % 7 ? Colour{120, 170, 230} : Colour{30, 70, 110};
                              })},
        {"sky, hills, meadow", paint(400, 300, 6,
                                     [](int x, int y) {
                                         const double hills = 110 + 25 * std::sin(x / 60.0);
                                         return y < hills ? Colour{150, 190, 235}
                                                : y < 200 ? Colour{110, 90, 70}
                                                          : Colour{70, 140, 60};
                                     })},
    };
    for (const Scene& scene : scenes)
        EXPECT_FALSE(ContrastSubjectMask().find(scene.picture.view(), {})) << scene.name;
}

TEST(ContrastSubjectMask, answersForPicturesTooSmallOrTooThinToHoldASubject) {
    for (const auto& [width, height] : {std::pair(1, 1), std::pair(2, 3), std::pair(15, 400),
                                        std::pair(5000, 3), std::pair(16, 16), std::pair(6000, 20)}) {
        const auto picture = paint(width, height, 40, [](int x, int) { return Colour{x % 255, 100, 100}; });
        EXPECT_NO_THROW(ContrastSubjectMask().find(picture.view(), {})) << width << " x " << height;
    }
    const std::vector<std::uint8_t> bytes(299);
    EXPECT_THROW(ContrastSubjectMask().find({bytes, 10, 10}, {}), ConversionError);
    EXPECT_THROW(ContrastSubjectMask().find({bytes, 0, 10}, {}), ConversionError);
    EXPECT_THROW(ContrastSubjectMask().find({bytes, -10, -10}, {}), ConversionError);
}

TEST(ContrastSubjectMask, alwaysAnswersTheSameAlsoSideBySide) {
    const auto one = discOnMeadow(500, 400, {});
    const auto other = discOnMeadow(400, 500, {.x = 0.4, .y = 0.6, .radius = 0.15});
    const ContrastSubjectMask engine;
    const auto expectedOne = engine.find(one.view(), {});
    const auto expectedOther = engine.find(other.view(), {});
    std::vector<std::jthread> threads;
    std::array<bool, 4> same{};
    for (std::size_t i = 0; i < same.size(); ++i) {
        threads.emplace_back([&, i] {
            same[i] =
                engine.find(other.view(), {}) == expectedOther && engine.find(one.view(), {}) == expectedOne;
        });
    }
    threads.clear();
    EXPECT_THAT(same, testing::Each(true));
}

TEST(ContrastSubjectMask, reportsProgressUpwardsToTheEnd) {
    std::vector<double> fractions;
    const auto picture = discOnMeadow(500, 400, {});
    ContrastSubjectMask().find(picture.view(),
                               {.progress = [&](double fraction) { fractions.push_back(fraction); }});
    ASSERT_GE(fractions.size(), 3U);
    EXPECT_TRUE(std::ranges::is_sorted(fractions));
    EXPECT_EQ(fractions.back(), 1);
}

TEST(ContrastSubjectMask, stopsAtEveryStage) {
    const auto picture = discOnMeadow(500, 400, {});
    for (const double stage : {0.0, 0.1, 0.3, 0.7}) {
        std::stop_source source;
        if (stage == 0) source.request_stop();
        const WorkContext context{.progress =
                                      [&](double done) {
                                          if (done >= stage) source.request_stop();
                                      },
                                  .stop = source.get_token()};
        EXPECT_THROW(ContrastSubjectMask().find(picture.view(), context), Cancelled) << stage;
    }
}

}  // namespace
}  // namespace tamble
