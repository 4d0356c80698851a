#include <Tamble/Model/InkFromPhoto.h>
#include <Tamble/Model/InkPen.h>
#include <Tamble/Model/SignaturePlace.h>

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using testing::DoubleNear;

TEST(InkPenTest, FastStrokesAreThinnerAndEndWhereTheHandWas) {
    const auto drawn = [](double secondsBetween) {
        InkPen pen;
        pen.begin(0.1, 0.2, 0);
        for (int i = 1; i <= 20; ++i) pen.add(0.1 + 0.03 * i, 0.2, secondsBetween * i);
        pen.end(0.7, 0.2, secondsBetween * 21);
        return pen.stroke();
    };
    const InkStroke slow = drawn(0.05);
    const InkStroke fast = drawn(0.005);
    EXPECT_LT(fast[15].width, slow[15].width);
    for (const auto& stroke : {slow, fast, drawn(0)}) {
        EXPECT_EQ(stroke.front().x, 0.1);
        EXPECT_EQ(stroke.back().x, 0.7);
        for (const InkPoint& point : stroke) {
            EXPECT_GT(point.width, 0);
            EXPECT_LT(point.width, 0.02);
        }
    }

    InkPen dot;
    dot.begin(0.5, 0.1, 0);
    dot.add(0.5005, 0.1, 0.1);
    dot.end(0.5, 0.1005, 0.2);
    EXPECT_EQ(dot.stroke().size(), 1U) << "a trembling hand still makes a dot";
    InkPen none;
    none.add(0.3, 0.3, 1);
    EXPECT_EQ(none.stroke().size(), 1U);
}

TEST(InkPenTest, SmoothedLinesKeepTheirEndsAndBendWithoutCorners) {
    const InkStroke corner{{0, 0, 0.01}, {0.5, 0, 0.01}, {0.5, 0.5, 0.01}, {1, 0.5, 0.02}};
    const InkStroke line = smoothed(corner);
    EXPECT_EQ(line.front(), corner.front());
    EXPECT_EQ(line.back(), corner.back());
    EXPECT_GT(line.size(), corner.size());
    for (std::size_t i = 2; i < line.size(); ++i) {
        const double before = std::atan2(line[i - 1].y - line[i - 2].y, line[i - 1].x - line[i - 2].x);
        const double after = std::atan2(line[i].y - line[i - 1].y, line[i].x - line[i - 1].x);
        EXPECT_LT(std::abs(after - before), 0.6);
    }
    for (const InkStroke& shortOne : {InkStroke{}, InkStroke{{1, 1, 1}}, InkStroke{{0, 0, 1}, {1, 1, 1}}})
        EXPECT_EQ(smoothed(shortOne), shortOne);

    EXPECT_FALSE(boundsOf({}));
    EXPECT_FALSE(boundsOf(std::vector<InkStroke>{{}}));
    const auto bounds = boundsOf(std::vector<InkStroke>{{{0.5, 0.5, 0.02}}, {{0.2, 0.7, 0.01}}});
    ASSERT_TRUE(bounds);
    EXPECT_DOUBLE_EQ(bounds->left, 0.195);
    EXPECT_DOUBLE_EQ(bounds->right, 0.51);
    EXPECT_DOUBLE_EQ(bounds->bottom, 0.705);
}

bool isOnPage(const NormalizedRect& rect) {
    constexpr double rounding = 1e-9;
    return rect.x >= 0 && rect.y >= 0 && rect.width > 0 && rect.height > 0 &&
           rect.x + rect.width <= 1 + rounding && rect.y + rect.height <= 1 + rounding;
}

TEST(SignaturePlaceTest, KeepsItsShapeAndStaysOnThePage) {
    for (const double picture : {0.01, 0.3, 1.0, 3.0, 200.0}) {
        for (const double page : {0.02, 0.707, 1.414, 50.0}) {
            const NormalizedRect rect = SignaturePlace::first(picture, page);
            const double shape = rect.height / rect.width;
            const auto expectWhole = [&](const NormalizedRect& other) {
                EXPECT_TRUE(isOnPage(other)) << picture << " on " << page;
                EXPECT_THAT(other.height / other.width / shape, DoubleNear(1, 1e-6));
            };
            EXPECT_THAT(rect.width * page / rect.height / picture, DoubleNear(1, 1e-6)) << "not stretched";
            expectWhole(rect);
            expectWhole(SignaturePlace::movedTo(rect, -3, 0.9999));
            for (const double width : {-1.0, 0.0, 0.05, 9.0}) {
                expectWhole(SignaturePlace::widened(rect, width));
                EXPECT_EQ(SignaturePlace::widened(rect, width).x, rect.x);
            }
            NormalizedRect grown = rect;
            for (int i = 0; i < 60; ++i) expectWhole(grown = SignaturePlace::scaled(grown, 1.1));
            EXPECT_THAT(std::max(grown.width, grown.height), DoubleNear(1, 1e-9));
            for (int i = 0; i < 120; ++i) expectWhole(grown = SignaturePlace::scaled(grown, 1 / 1.1));
            EXPECT_GT(std::max(grown.width, grown.height), 0.015) << "it can still be seen and grasped";
        }
    }
    const NormalizedRect larger = SignaturePlace::scaled({0.4, 0.4, 0.2, 0.1}, 1.5);
    EXPECT_DOUBLE_EQ(larger.x, 0.35);
    EXPECT_DOUBLE_EQ(larger.y, 0.375);
}

/// Paper whose light falls off to the right, as under a lamp.
PreviewPicture unevenPaper(int width, int height) {
    PreviewPicture picture{width, height, 3, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int channel = 0; channel < 3; ++channel)
                picture.samples.push_back(static_cast<std::uint8_t>(240 - 130 * x / width));
        }
    }
    return picture;
}

void fill(PreviewPicture& picture, int left, int top, int right, int bottom, std::array<int, 4> color) {
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            for (int channel = 0; channel < picture.channels; ++channel)
                picture
                    .samples[static_cast<std::size_t>((y * picture.width + x) * picture.channels + channel)] =
                    static_cast<std::uint8_t>(color[static_cast<std::size_t>(channel)]);
        }
    }
}

TEST(InkFromPhotoTest, PaperGoesHoweverUnevenlyItIsLit) {
    PreviewPicture photo = unevenPaper(320, 160);
    EXPECT_FALSE(inkFromPhoto(photo)) << "a shadow is no writing";
    fill(photo, 60, 50, 260, 56, {20, 30, 90, 0});
    const auto ink = inkFromPhoto(photo);
    ASSERT_TRUE(ink);
    EXPECT_EQ(ink->channels, 4);
    EXPECT_EQ(ink->width, 202);
    EXPECT_EQ(ink->height, 8);
    const auto alphaAt = [&](int x, int y) {
        return ink->samples.at(static_cast<std::size_t>((y * ink->width + x) * 4 + 3));
    };
    for (const int x : {2, 100, 199}) {
        EXPECT_GT(alphaAt(x, 4), 200);
        EXPECT_EQ(alphaAt(x, 0), 0);
    }
    const std::size_t middle = (4U * 202 + 100) * 4;
    EXPECT_GT(ink->samples[middle + 2], ink->samples[middle] + 40) << "blue ink stays blue";
    fill(photo, 60, 50, 130, 120, {20, 30, 90, 0});
    const auto blot = inkFromPhoto(photo);
    ASSERT_TRUE(blot);
    EXPECT_EQ(blot->samples[(40U * 202 + 40) * 4 + 3], 255) << "a blot is not taken for paper";
    EXPECT_FALSE(inkFromPhoto({}));
    EXPECT_FALSE(inkFromPhoto({1, 1, 3, {0, 0, 0}}));
}

TEST(InkFromPhotoTest, WhatIsSeeThroughAlreadyIsOnlyCut) {
    PreviewPicture picture{40, 30, 4, std::vector<std::uint8_t>(40U * 30 * 4)};
    EXPECT_FALSE(inkFromPhoto(picture));
    fill(picture, 10, 5, 20, 9, {250, 250, 250, 255});
    const auto ink = inkFromPhoto(picture);
    ASSERT_TRUE(ink);
    EXPECT_EQ(ink->width, 12);
    EXPECT_EQ(ink->height, 6);
    EXPECT_EQ(ink->samples[(1U * 12 + 1) * 4], 250) << "even white ink";
}

}  // namespace
}  // namespace tamble
