#include "PreviewTest.h"

namespace tamble {
namespace {

/// Red in the lower left quarter of a page of 200 × 100, blue in the lower right, the rest white.
constexpr const char* corners = "1 0 0 rg 0 0 100 50 re f 0 0 1 rg 100 0 100 50 re f";

std::string turnedPages() {
    return test::pagesPDF(
        {"", "/Rotate 90", "/CropBox [50 0 150 50]", "/UserUnit 2.5", "/MediaBox [0 0 595.276 841.89]"},
        corners);
}

TEST_F(PreviewTest, PagesAreListedAndDrawnAsTheyAreShown) {
    const auto document = file("a.pdf", turnedPages());
    EXPECT_EQ(previewer_.pages(document, {}, {}),
              (std::vector<PreviewPage>{{200, 100}, {100, 200}, {100, 50}, {500, 250}, {595.276, 841.89}}));
    std::string drawn;
    previewer_.drawPages(document, 0, 5, 60, {},
                         [&](int page, const PreviewPicture& picture) {
                             drawn += fmt::format("{} {} {}\n", page, size(picture), quarters(picture));
                             EXPECT_EQ(previewer_.page(document, page, 60, {}, {}), picture) << page;
                         },
                         {});
    EXPECT_EQ(drawn, "0 60x30x3 WWRB\n1 30x60x3 RWBW\n2 60x30x3 RBRB\n3 60x30x3 WWRB\n4 43x60x3 WWWW\n");
    EXPECT_EQ(outputsLeft(), 0);
}

TEST_F(PreviewTest, PagesFitWhateverTheirSize) {
    const auto document =
        file("a.pdf",
             test::pagesPDF({"/MediaBox [0 0 612 792]", "/MediaBox [0 0 10000 1]", "/MediaBox [0 0 0.5 0.7]",
                             "/MediaBox [0 0 14400 14400]", "/MediaBox [0 0 200 100] /UserUnit 1000"},
                            corners));
    for (const int side : {1, 7, 240, 241, 999, 2048}) {
        for (int page = 0; page < 5; ++page) {
            const auto picture = previewer_.page(document, page, side, {}, {});
            EXPECT_EQ(std::max(picture.width, picture.height), side) << page;
        }
    }
}

TEST_F(PreviewTest, PagesThatAreNotThereAreRefused) {
    const auto document = file("a.pdf", turnedPages());
    const auto drawing = [&](int first, int count) {
        return outcome([&] {
            previewer_.drawPages(document, first, count, 10, {}, [](int, const PreviewPicture&) {}, {});
        });
    };
    EXPECT_EQ(drawing(5, 1), "invalidPageRange");
    EXPECT_EQ(drawing(4, 2), "invalidPageRange");
    EXPECT_EQ(drawing(-1, 1), "invalidPageRange");
    EXPECT_EQ(drawing(2147483647, 2147483647), "invalidPageRange");
    EXPECT_EQ(drawing(0, 0), "invalidPageRange");
    EXPECT_EQ(drawing(4, 1), "done");
}

TEST_F(PreviewTest, APageThatFailsCostsNoneBeforeIt) {
    const std::string endless = "/UserUnit 1" + std::string(308, '0');
    const auto document = file("a.pdf", test::pagesPDF({"", "", endless, ""}, corners));
    EXPECT_EQ(previewer_.pages(document, {}, {}).size(), 4U);
    std::vector<int> drawn;
    EXPECT_EQ(outcome([&] {
                  previewer_.drawPages(document, 0, 4, 60, {},
                                       [&](int page, const PreviewPicture&) { drawn.push_back(page); }, {});
              }),
              "pageFailed");
    EXPECT_EQ(drawn, (std::vector{0, 1}));
    EXPECT_EQ(size(previewer_.page(document, 3, 60, {}, {})), "60x30x3");
}

TEST_F(PreviewTest, LockedPagesAreToldFromDamagedOnes) {
    const auto document = locked(file("a.pdf", turnedPages()), "secret word");
    const auto trouble = [&](const InputFile& of, const std::string& password) {
        std::string both;
        for (const bool lists : {true, false}) {
            try {
                lists ? void(previewer_.pages(of, {password}, {}))
                      : void(previewer_.page(of, 1, 60, {password}, {}));
                both += "done ";
            } catch (const Failure& failure) {
                both += failure.code() + (asksForPassword(failure) ? "! " : " ");
            }
        }
        return both;
    };
    EXPECT_EQ(trouble(document, ""), "locked! locked! ");
    EXPECT_EQ(trouble(document, "another"), "wrongPassword! wrongPassword! ");
    EXPECT_EQ(trouble(document, "secret word"), "done done ");
    EXPECT_EQ(quarters(previewer_.page(document, 1, 60, {"secret word"}, {})), "RWBW");
    EXPECT_EQ(trouble(file("text.pdf", "no document"), ""), "unreadable unreadable ");
}

TEST_F(PreviewTest, AStopRequestEndsTheDrawing) {
    const auto document = file("long.pdf", test::pagesPDF(std::vector<std::string>(400), corners));
    std::stop_source stop;
    int drawn = 0;
    EXPECT_EQ(outcome([&] {
                  previewer_.drawPages(
                      document, 0, 400, 1200, {},
                      [&](int, const PreviewPicture&) {
                          ++drawn;
                          stop.request_stop();
                      },
                      stop.get_token());
              }),
              "cancelled");
    EXPECT_GT(drawn, 0);
    EXPECT_LT(drawn, 400);
    EXPECT_EQ(outputsLeft(), 0);
    EXPECT_EQ(previewer_.pages(document, {}, {}).size(), 400U);
}

TEST_F(PreviewTest, WhatTheTakerThrowsEndsTheDrawing) {
    const auto document = file("a.pdf", turnedPages());
    int taken = 0;
    EXPECT_EQ(outcome([&] {
                  previewer_.drawPages(document, 0, 5, 60, {},
                                       [&](int, const PreviewPicture&) {
                                           ++taken;
                                           throw Failure("enough", "That is enough.");
                                       },
                                       {});
              }),
              "enough");
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(outputsLeft(), 0);
    EXPECT_EQ(size(previewer_.page(document, 0, 60, {}, {})), "60x30x3");
}

}  // namespace
}  // namespace tamble
