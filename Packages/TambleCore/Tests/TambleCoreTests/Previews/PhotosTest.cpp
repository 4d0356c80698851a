#include <thread>

#include "PreviewTest.h"

namespace tamble {
namespace {

using vips::VImage;

TEST_F(PreviewTest, PhotosAreUprightAndFittedAndNeverEnlarged) {
    const VImage upright = test::fourFields(640, 480);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const auto photo = picture("a.jpg[Q=90]", test::storedAs(upright, orientation));
        const auto small = previewer_.photo(photo, 60, {});
        EXPECT_EQ(size(small), "60x45x3") << orientation;
        EXPECT_EQ(quarters(small), "RGBW") << orientation;
        EXPECT_EQ(size(previewer_.photo(photo, 5000, {})), "640x480x3") << orientation;
    }
    EXPECT_EQ(size(previewer_.photo(picture("line.png", test::fourFields(2000, 2)), 100, {})), "100x1x3");
    EXPECT_EQ(size(previewer_.photo(picture("a.jpg", upright), 0, {})), "1x1x3");
}

TEST_F(PreviewTest, WhatIsSeeThroughStaysSoWithItsColours) {
    const VImage alpha = VImage::black(400, 200).insert(VImage::black(200, 200) + 255, 200, 0);
    const auto shown = previewer_.photo(
        picture("a.png", (VImage::black(400, 200) + std::vector{200.0, 40.0, 10.0})
                             .cast(VIPS_FORMAT_UCHAR)
                             .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
                             .bandjoin(alpha.cast(VIPS_FORMAT_UCHAR))),
        100, {});
    ASSERT_EQ(size(shown), "100x50x4");
    EXPECT_EQ(shown.samples[3], 0);
    // Straight, up to the edge.
    const std::vector right(shown.samples.begin() + 4 * 51, shown.samples.begin() + 4 * 52);
    EXPECT_NEAR(right[0], 200, 2);
    EXPECT_NEAR(right[1], 40, 2);
    EXPECT_GT(right[3], 240);
}

TEST_F(PreviewTest, EveryKindOfPixelsIsShownInPlainColours) {
    const VImage fields = test::fourFields(320, 240);
    const VImage grey = fields.colourspace(VIPS_INTERPRETATION_B_W);
    EXPECT_EQ(size(previewer_.photo(picture("grey.jpg", grey), 32, {})), "32x24x3");
    for (const auto& photo :
         {picture("deep.png", fields.colourspace(VIPS_INTERPRETATION_RGB16)),
          picture("inks.tif", fields.colourspace(VIPS_INTERPRETATION_CMYK)),
          picture("float.tif", fields.colourspace(VIPS_INTERPRETATION_scRGB)),
          picture("lab.tif", fields.colourspace(VIPS_INTERPRETATION_LAB)), picture("web.webp", fields)}) {
        const auto shown = previewer_.photo(photo, 32, {});
        EXPECT_EQ(size(shown), "32x24x3") << photo.url.native();
        EXPECT_EQ(quarters(shown), "RGBW") << photo.url.native();
    }
}

TEST_F(PreviewTest, OfSeveralPicturesTheFirstIsShown) {
    VImage pages = test::fourFields(100, 80).join(VImage::black(100, 80) + 128, VIPS_DIRECTION_VERTICAL);
    pages = pages.cast(VIPS_FORMAT_UCHAR).copy();
    pages.set("page-height", 80);
    for (const char* name : {"several.gif", "several.webp[lossless]", "several.tif"}) {
        const auto shown = previewer_.photo(picture(name, pages), 50, {});
        EXPECT_EQ(fmt::format("{}x{}", shown.width, shown.height), "50x40") << name;
        EXPECT_EQ(quarters(shown), "RGBW") << name;
    }
}

TEST_F(PreviewTest, FilesThatCannotBeShownSayWhyAndCostNothingElse) {
    const auto good = picture("good.jpg", test::photograph(800, 600));
    const std::string bytes = contentOf(good.url);
    EXPECT_EQ(outcome([&] { previewer_.photo(file("half.jpg", bytes.substr(0, bytes.size() / 2)), 99, {}); }),
              "cannotDecode");
    EXPECT_EQ(outcome([&] { previewer_.photo(file("text.jpg", "no picture"), 99, {}); }), "unreadable");
    EXPECT_EQ(outcome([&] { previewer_.photo(file("empty.png", ""), 99, {}); }), "unreadable");
    auto gone = good;
    gone.url = "/nowhere/gone.jpg";
    EXPECT_EQ(outcome([&] { previewer_.photo(gone, 99, {}); }), "inputMissing");
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_EQ(outcome([&] { previewer_.photo(good, 99, stopped.get_token()); }), "cancelled");
    EXPECT_EQ(size(previewer_.photo(good, 99, {})), "99x74x3");
    EXPECT_EQ(outputsLeft(), 0);
}

TEST_F(PreviewTest, PhotosAreMadeSideBySideInWorkersThatAreUsedAgain) {
    std::vector<InputFile> files;
    for (int side = 100; side < 140; ++side)
        files.push_back(picture(fmt::format("{}.png", side), test::fourFields(side, 10)));
    const auto make = [&](std::size_t first) {
        for (std::size_t i = first; i < files.size(); i += 2)
            EXPECT_EQ(size(previewer_.photo(files[i], 1000, {})), fmt::format("{}x10x3", 100 + i));
    };
    {
        const std::jthread other(make, 1);
        make(0);
    }
    EXPECT_EQ(outputsLeft(), 0);
}

TEST_F(PreviewTest, TidiedCachesAreMadeAnew) {
    const auto photo = picture("a.png", test::fourFields(40, 30));
    previewer_.photo(photo, 20, {});
    std::filesystem::remove_all(folder_.home() / "caches");
    EXPECT_EQ(size(previewer_.photo(photo, 20, {})), "20x15x3");
}

TEST_F(PreviewTest, AMissingWorkerIsAFailure) {
    const Previewer broken(std::make_shared<WorkerPool>(previewLimits(), "/nowhere/worker"));
    const auto photo = picture("a.png", test::fourFields(40, 30));
    EXPECT_EQ(outcome([&] { broken.photo(photo, 20, {}); }), "workerUnavailable");
}

}  // namespace
}  // namespace tamble
