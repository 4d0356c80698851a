#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/PDF/SignatureText.h>
#include <TambleCore/PDF/Structure/PageBox.h>
#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Support/Settings/SettingsSchema.h>

#include "TinyPDF.h"

namespace tamble::pdf {
namespace {

using testing::HasSubstr;

/// A red pixel, half see-through.
const std::string pixel(
    "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\x06\0\0\0\x1f\x15\xc4\x89\0\0\0\rIDAT\x78"
    "\x9c\x63\xf8\xcf\xc0\xd0\0\0\4\x81\1\x80\x2c\x55\xce\xb0\0\0\0\0IEND\xae\x42\x60\x82",
    70);

SignaturePlacement placement(int page, const NormalizedRect& rect) {
    const auto bytes = std::as_bytes(std::span(pixel));
    return {.id = "A", .page = page, .rect = rect, .imagePNG = {bytes.begin(), bytes.end()}};
}

struct Point {
    double x = 0;
    double y = 0;
};

Point through(const std::array<double, 6>& m, Point p) {
    return {m[0] * p.x + m[2] * p.y + m[4], m[1] * p.x + m[3] * p.y + m[5]};
}

/// Where readers show a point of the page, from the upper left corner.
Point shown(const PageBox& box, Point p) {
    const double x = p.x - box.left;
    const double y = p.y - box.bottom;
    switch (box.turn) {
        case 90:
            return {y, x};
        case 180:
            return {box.width - x, y};
        case 270:
            return {box.height - y, box.width - x};
        default:
            return {x, box.height - y};
    }
}

TEST(PageBox, SignaturesStandUprightOnTurnedAndCroppedPages) {
    for (const int turn : {0, 90, 180, 270}) {
        const PageBox box{.left = 10, .bottom = 20, .width = 200, .height = 300, .turn = turn};
        const double w = turn % 180 == 0 ? 200 : 300;
        const double h = turn % 180 == 0 ? 300 : 200;
        // Wider than the picture of 2 by 1, and then higher.
        for (const NormalizedRect rect :
             {NormalizedRect{0.1, 0.2, 0.5, 0.1}, NormalizedRect{0.5, 0, 0.1, 0.9}}) {
            const auto matrix = box.matrixFor(rect, 2);
            const Point topLeft = shown(box, through(matrix, {0, 1}));
            const Point topRight = shown(box, through(matrix, {1, 1}));
            const Point bottomLeft = shown(box, through(matrix, {0, 0}));
            EXPECT_NEAR(topLeft.y, topRight.y, 1e-9) << turn;
            EXPECT_NEAR(topLeft.x, bottomLeft.x, 1e-9) << turn;
            const double width = topRight.x - topLeft.x;
            const double height = bottomLeft.y - topLeft.y;
            EXPECT_NEAR(width, 2 * height, 1e-9) << turn;
            EXPECT_NEAR(width, std::min(rect.width * w, 2 * rect.height * h), 1e-9) << turn;
            EXPECT_NEAR(topLeft.x + width / 2, (rect.x + rect.width / 2) * w, 1e-9) << turn;
            EXPECT_NEAR(topLeft.y + height / 2, (rect.y + rect.height / 2) * h, 1e-9) << turn;
        }
    }
}

TEST(PageBox, IsWhatReadersShow) {
    const auto of = [](const std::string& keys) {
        const auto box = PageBox::of(QPDFObjectHandle::parse("<< /Type /Page " + keys + " >>"));
        return fmt::format("{} {} {} {} {}", box.left, box.bottom, box.width, box.height, box.turn);
    };
    EXPECT_EQ(of("/MediaBox [0 0 100 200]"), "0 0 100 200 0");
    EXPECT_EQ(of("/MediaBox [100 200 0 0] /Rotate -90"), "0 0 100 200 270");
    EXPECT_EQ(of("/MediaBox [0 0 100 200] /CropBox [10 20 500 50]"), "10 20 90 30 0");
    EXPECT_EQ(of("/MediaBox [0 0 100 200] /CropBox [300 300 400 400]"), "0 0 100 200 0");
    EXPECT_EQ(of("/MediaBox [0 0 100 200] /Rotate 45"), "0 0 100 200 0");
    EXPECT_EQ(of("/MediaBox [0 0 0 0] /Rotate 450"), "0 0 612 792 90");
}

TEST(Sign, DrawsOnThatPageOnly) {
    const TestFolder folder;
    TinyPDF pdf(3);
    // All pages have one list of resources, which must not grow for all.
    auto shared =
        pdf.object("<< /XObject << /Signature1 " +
                   TinyPDF::ref(pdf.stream("/Type /XObject /Subtype /Form /BBox [0 0 1 1]", "")) + " >> >>");
    for (const int page : {1, 2, 3}) pdf.page(page).replaceKey("/Resources", shared);
    PDFJobSettings settings;
    settings.signatures = {placement(1, {0.5, 0.5, 0.2, 0.2}), placement(1, {0, 0, 1, 1})};
    ReadPDF result(done(PDFTool::sign, pdf.save(folder, "in.pdf"), settings));
    EXPECT_EQ(result.order(), "1,2,3");
    std::vector<int> pictures;
    for (auto page : result.pages())
        pictures.push_back(static_cast<int>(page.getKey("/Resources").getKey("/XObject").getKeys().size()));
    EXPECT_THAT(pictures, testing::ElementsAre(1, 3, 1));
    auto drawn = result.pages()[1].getKey("/Resources").getKey("/XObject").getKey("/Signature2");
    EXPECT_TRUE(drawn.getDict().getKey("/SMask").isStream());
    const auto colours = drawn.getStreamData(qpdf_dl_all);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(colours->getBuffer()), colours->getSize()),
              std::string("\xff\0\0", 3));
}

TEST(Sign, RefusesWhatDoesNotFit) {
    const TestFolder folder;
    const auto file = TinyPDF(1).save(folder, "in.pdf");
    const auto outcomeFor = [&](std::vector<SignaturePlacement> signatures) {
        PDFJobSettings settings;
        settings.signatures = std::move(signatures);
        return outcome([&] { done(PDFTool::sign, file, settings); });
    };
    EXPECT_EQ(outcomeFor({}), "signatureMissing");
    EXPECT_EQ(outcomeFor({placement(1, {0, 0, 1, 1})}), "invalidPageRange");
    EXPECT_EQ(outcomeFor({placement(-1, {0, 0, 1, 1})}), "invalidPageRange");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const NormalizedRect rect : {NormalizedRect{0, 0, 0, 1}, NormalizedRect{0.5, 0, 0.6, 1},
                                      NormalizedRect{-0.1, 0, 0.5, 0.5}, NormalizedRect{nan, 0, 0.5, 0.5}})
        EXPECT_EQ(outcomeFor({placement(0, rect)}), "signatureOffPage");
    auto empty = placement(0, {0, 0, 1, 1});
    empty.imagePNG.clear();
    EXPECT_EQ(outcomeFor({empty}), "signatureUnreadable");
    auto cutOff = placement(0, {0, 0, 1, 1});
    cutOff.imagePNG.resize(50);
    EXPECT_EQ(outcomeFor({cutOff}), "signatureUnreadable");
}

TEST(Sign, APictureThatClaimsToBeHugeIsRefused) {
    const TestFolder folder;
    const auto file = TinyPDF(1).save(folder, "in.pdf");
    // The number of bytes of the second wraps round to few.
    for (const auto& [width, height] : std::vector<std::pair<std::uint32_t, std::uint32_t>>{
             {2'000'000'000, 2'000'000'000}, {0x3FFFFFFF, 0xFFFFFFFF}, {0x40000000, 0xFFFFFFFF}}) {
        std::string header;
        for (const std::uint32_t side : {width, height}) {
            for (int shift = 24; shift >= 0; shift -= 8)
                header += static_cast<char>(side >> static_cast<unsigned>(shift) & 0xFFU);
        }
        std::string claims = pixel;
        claims.replace(16, 8, header);
        auto huge = placement(0, {0, 0, 1, 1});
        const auto bytes = std::as_bytes(std::span(claims));
        huge.imagePNG.assign(bytes.begin(), bytes.end());
        PDFJobSettings settings;
        settings.signatures = {huge};
        EXPECT_EQ(outcome([&] { done(PDFTool::sign, file, settings); }), "signatureUnreadable");
    }
}

TEST(SignatureText, IsReadAsItIsTyped) {
    const TestFolder folder;
    const auto picture = folder.write("me@work.png", pixel);
    const auto placed = [&](const std::string& place) {
        return decodeJson<std::vector<SignaturePlacement>>(withSignature(picture.native() + place, Json()))
            .at(0);
    };
    EXPECT_EQ(placed("").page, 0);
    EXPECT_EQ(placed("@3").page, 2);
    EXPECT_EQ(placed("@2:10,20, 30,40").rect, (NormalizedRect{0.1, 0.2, 0.3, 0.4}));
    EXPECT_EQ(placed("").imagePNG.size(), pixel.size());
    for (const char* wrong : {"@0", "@-1", "@1:1,2,3", "@1:1,2,3,4,5", "@1:1,2,3,x", "@1:0,0,101,1",
                              "@1:nan,0,1,1", "@1:inf,0,1,1", "@1:", "@1:,,,"})
        EXPECT_THROW(placed(wrong), SettingError) << wrong;
    EXPECT_THROW(withSignature((folder.files() / "none.png").native(), Json()), SettingError);
    EXPECT_THROW(withSignature(folder.files().native(), Json()), SettingError);
    EXPECT_THROW(withSignature(folder.write("no.png", "GIF89a").native(), Json()), SettingError);
}

}  // namespace
}  // namespace tamble::pdf
