#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Pages/PageRenderer.h>

#include "SmallPDF.h"
#include <TambleCoreTests/TemporaryFolder.h>

namespace tamble::pdf {
namespace {

/// Red in the lower left quarter of a page of 200 × 100, blue in the lower right, the rest white.
constexpr const char* corners = "1 0 0 rg 0 0 100 50 re f 0 0 1 rg 100 0 100 50 re f";

/// The colours in the middle of a picture's quarters, from left to right and top to bottom.
std::string quarters(const Raster& picture) {
    std::string letters;
    for (const int y : {picture.height / 4, 3 * picture.height / 4}) {
        for (const int x : {picture.width / 4, 3 * picture.width / 4}) {
            const auto at = static_cast<std::size_t>(3 * (y * picture.width + x));
            const bool red = picture.samples[at] > 127;
            const bool blue = picture.samples[at + 2] > 127;
            letters += red && blue ? 'w' : red ? 'R' : blue ? 'B' : '?';
        }
    }
    return letters;
}

struct Opened {
    testing::TemporaryFolder folder;
    std::filesystem::path file;
    Document document;
    PageRenderer renderer;

    explicit Opened(const std::string& content)
        : file(folder.file("-odd %d name.pdf", content)),
          document(Document::open(file, {})),
          renderer(document, file) {}

    std::vector<std::string> drawn(double dpi) const {
        std::vector<std::string> pages;
        renderer.pages(
            0, renderer.pageCount(), [dpi](int) { return dpi; },
            [&](int, const Raster& picture) {
                pages.push_back(fmt::format("{}x{} {}", picture.width, picture.height, quarters(picture)));
            },
            {});
        return pages;
    }
};

TEST(PageRenderer, PagesAreDrawnAsTheyAreShown) {
    const Opened opened(
        test::pagesPDF({"", "/Rotate 90", "/Rotate -180", "/Rotate 270", "/CropBox [50 0 150 50]",
                        "/CropBox [150 50 50 -20] /Rotate 90", "/UserUnit 2.5"},
                       corners));
    EXPECT_EQ(opened.drawn(72),
              (std::vector<std::string>{"200x100 wwRB", "100x200 RwBw", "200x100 BRww", "100x200 wBwR",
                                        "100x50 RBRB", "50x100 RRBB", "500x250 wwRB"}));
    EXPECT_EQ(opened.drawn(36).front(), "100x50 wwRB");
}

TEST(PageRenderer, OnePageIsDrawnInTheSizeAskedFor) {
    const Opened opened(test::pagesPDF({"", "/Rotate 90"}, corners));
    const Raster picture = opened.renderer.page(1, {.width = 31, .height = 77}, {});
    EXPECT_EQ(picture.width, 31);
    EXPECT_EQ(picture.height, 77);
    EXPECT_EQ(quarters(picture), "RwBw");
    EXPECT_THROW(opened.renderer.page(0, {.width = 60'000, .height = 60'000}, {}), PDFError);
}

TEST(PageRenderer, BoxesThatOtherProgramsReadOtherwiseAreSettledHere) {
    // Upside down, and with a crop box that reaches beyond.
    const Opened opened(test::pagesPDF({"/MediaBox [200 100 0 0] /CropBox [-100 0 100 1000]"}, corners));
    EXPECT_EQ(opened.drawn(72), std::vector<std::string>{"100x100 wwRR"});
}

TEST(PageRenderer, DocumentsWithoutATableOfObjectsAreDrawn) {
    std::string content = test::pagesPDF({"", "/Rotate 90"}, corners);
    content.erase(content.find("xref"), content.find("trailer") - content.find("xref"));
    content.resize(content.find("/Size"));
    content += ">>";
    EXPECT_EQ(Opened(content).drawn(72), (std::vector<std::string>{"200x100 wwRB", "100x200 RwBw"}));
}

TEST(PageGeometry, SizesAreBoundedBeforeAnythingIsDrawn) {
    const Opened opened(
        test::pagesPDF({"/MediaBox [0 0 14400 14400]", "/MediaBox [0 0 99999999999 1]", "/MediaBox [5 5 5 5]",
                        "/MediaBox (none)", "/UserUnit 100000", "/UserUnit -1"},
                       corners));
    const auto size = [&](int page, double dpi) { return pixelsOf(opened.renderer.geometry(page), dpi); };
    EXPECT_EQ(size(0, 36), (PagePixels{7200, 7200}));
    EXPECT_FALSE(size(0, 72));
    EXPECT_FALSE(size(1, 72));
    EXPECT_EQ(size(2, 72), (PagePixels{612, 792}));
    EXPECT_EQ(size(3, 72), (PagePixels{612, 792}));
    EXPECT_FALSE(size(4, 72));
    EXPECT_EQ(size(5, 72), (PagePixels{200, 100}));
    EXPECT_THROW(opened.drawn(72), PDFError);
}

}  // namespace
}  // namespace tamble::pdf
