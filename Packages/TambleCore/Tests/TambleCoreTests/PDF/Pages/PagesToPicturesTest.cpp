#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Pages/PageRenderer.h>

#include <set>

#include "SmallPDF.h"
#include <TambleCoreTests/TemporaryFolder.h>
#include <gmock/gmock.h>
#include <qpdf/QPDFPageObjectHelper.hh>

namespace tamble::pdf {
namespace {

using tamble::testing::TemporaryFolder;
using ::testing::HasSubstr;
using ::testing::Not;

class PagesToPictures : public ::testing::Test {
  protected:
    /// The document with pages that are pictures.
    Document made(const std::string& content, const PDFJobSettings& settings = {}) {
        const InputFile input{.url = folder_.file("in.pdf", content)};
        const auto destination = folder_.path() / "out.pdf";
        const WorkContext context;
        makePagesPictures({input, destination, settings, context});
        return Document::open(destination, settings.password);
    }

    const TemporaryFolder& folder() const { return folder_; }

  private:
    TemporaryFolder folder_;
};

/// Everything that can be reached, as text: names, strings and the data of streams.
void collect(QPDFObjectHandle object, std::string& text, std::set<QPDFObjGen>& seen) {
    if (object.isIndirect() && !seen.insert(object.getObjGen()).second) return;
    if (object.isStream()) {
        const bool isPicture = object.getDict().getKey("/Filter").isNameAndEquals("/DCTDecode");
        const auto data = isPicture ? object.getRawStreamData() : object.getStreamData(qpdf_dl_generalized);
        text.append(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
        object = object.getDict();
    }
    if (object.isDictionary()) {
        for (const auto& key : object.getKeys()) {
            text += key + " ";
            collect(object.getKey(key), text, seen);
        }
    } else if (object.isArray()) {
        for (auto item : object.getArrayAsVector()) collect(item, text, seen);
    } else {
        text += object.unparse() + "\n";
    }
}

std::string everythingIn(const Document& document) {
    std::string text;
    std::set<QPDFObjGen> seen;
    collect(document.qpdf().getTrailer(), text, seen);
    return text;
}

TEST_F(PagesToPictures, WhatWasDrawnAndFilledInIsGoneAndTheWayAboutStays) {
    const int further = test::firstFurther(2);
    const auto ref = [&](int which) { return fmt::format("{} 0 R", further + which); };
    const std::string link = "<< /Subtype /Link /Rect [1 2 30 40] /Contents (hidden words) /StructParent 4 ";
    const auto annotations = fmt::format(
        "/Annots [{0}/Dest [5 0 R /Fit] >> {0}/A << /S /URI /URI (https://example.org) /Next {1} >> >> "
        "{0}/A {1} >> {0}/A << /S /GoTo /D (somewhere) >> >> {0}/Dest [{2} /Fit] >> "
        "<< /Subtype /Widget /FT /Tx /T (field) /V (hidden value) >> << /Subtype /Text /Contents (hidden "
        "note) >>]",
        link, "<< /S /JavaScript /JS (hidden script) >>", ref(3));
    const std::string page =
        annotations + " /Thumb " + ref(1) + " /PieceInfo << /P (hidden) >> /AA << /O (hidden) >>";
    const auto catalog = fmt::format(
        "/Outlines {} /Names << /Dests << /Names [(orphan) [{} /Fit] (somewhere) [5 0 R /XYZ 0 50 0]] >> "
        "/JavaScript << /Names [(a) << /S /JavaScript /JS (hidden start) >>] >> >> /PageLabels << /Nums [0 "
        "<< /S "
        "/r >>] >> /AcroForm << /Fields [] /DA (hidden) >> /OCProperties << /N (hidden) >> /StructTreeRoot "
        "<< /T "
        "(hidden) >> /OpenAction << /S /JavaScript /JS (hidden opening) >> /Lang (de) /Metadata {}",
        ref(0), ref(3), ref(4));
    const Document document = made(test::pagesPDF(
        {page, "/Rotate 90 /CropBox [0 0 100 50]"}, "BT /F 12 Tf 10 10 Td (hidden text) Tj ET",
        {"<< /Type /Outlines /Count 1 /First " + ref(2) + " /Last " + ref(2) + " >>",
         test::streamOf("hidden thumb"),
         "<< /Title (Chapter) /Parent " + ref(0) + " /Dest [5 0 R /Fit] /SE << /T (hidden) >> >>",
         "<< /Type /Page /MediaBox [0 0 9 9] /Contents " + ref(1) + " >>",
         test::streamOf("<x><dc:title>A title</dc:title><xmp:Thumbnails>hidden</xmp:Thumbnails></x>",
                        "/Type /Metadata /Subtype /XML")},
        catalog));

    const std::string everything = everythingIn(document);
    EXPECT_THAT(everything, Not(HasSubstr("hidden")));
    EXPECT_THAT(everything, Not(HasSubstr("Helvetica")));
    for (const char* kept : {"A title", "D:20200102030405Z", "Chapter", "somewhere", "https://example.org",
                             "(de)", "/PageLabels", "<dc:title>"})
        EXPECT_THAT(everything, HasSubstr(kept));

    const auto& pages = document.pages();
    ASSERT_EQ(pages.size(), 2U);
    auto links = QPDFObjectHandle(pages[0]).getKey("/Annots");
    ASSERT_EQ(links.getArrayNItems(), 3);
    EXPECT_EQ(links.getArrayItem(0).getKey("/Dest").getArrayItem(0).getObjGen(), pages[1].getObjGen());
    EXPECT_EQ(links.getArrayItem(0).getKey("/Rect").unparse(), "[ 1 2 30 40 ]");
    auto turned = pages[1];
    EXPECT_EQ(turned.getKey("/Rotate").getIntValue(), 90);
    EXPECT_EQ(turned.getKey("/CropBox").unparse(), "[ 0 0 100 50 ]");
    // Black on white needs no colours.
    auto picture = turned.getKey("/Resources").getKey("/XObject").getKey("/Page").getDict();
    EXPECT_EQ(picture.getKey("/ColorSpace").getName(), "/DeviceGray");
    EXPECT_EQ(picture.getKey("/Filter").getName(), "/DCTDecode");
}

TEST_F(PagesToPictures, PagesLookAsBefore) {
    const std::string content =
        test::pagesPDF({"", "/Rotate 90", "/Rotate 180 /CropBox [20 10 190 95]", "/Rotate 270 /UserUnit 2",
                        "/MediaBox [-50 -50 150 50]"},
                       "1 0 0 rg 0 0 100 50 re f 0 0 1 rg 100 0 70 50 re f 0 0.6 0 rg 30 60 40 20 re f");
    const auto original = folder().file("original.pdf", content);
    const Document before = Document::open(original, {});
    const Document after = made(content);
    const PageRenderer drawnBefore(before, original);
    const PageRenderer drawnAfter(after, folder().path() / "out.pdf");
    for (int page = 0; page < drawnBefore.pageCount(); ++page) {
        const auto size = pixelsOf(drawnBefore.geometry(page), 36);
        ASSERT_EQ(size, pixelsOf(drawnAfter.geometry(page), 36)) << page;
        const Raster one = drawnBefore.page(page, *size, {});
        const Raster other = drawnAfter.page(page, *size, {});
        double difference = 0;
        for (std::size_t i = 0; i < one.samples.size(); ++i)
            difference += std::abs(one.samples[i] - other.samples[i]);
        // Edges are blurred; a page that lies otherwise differs by several times as much.
        EXPECT_LT(difference / static_cast<double>(one.samples.size()), 12) << page;
    }
}

TEST_F(PagesToPictures, EnormousPagesBecomeCoarserPictures) {
    const Document document = made(test::pagesPDF({"/MediaBox [0 0 14400 14400] /UserUnit 10"}, ""));
    auto picture = QPDFPageObjectHelper(document.pages().front()).getImages().at("/Page").getDict();
    EXPECT_NEAR(static_cast<double>(picture.getKey("/Width").getIntValue()), 6325, 2);
}

TEST(ToImages, EveryPageIsAPictureNamedByItsNumber) {
    const TemporaryFolder folder;
    std::vector<std::string> pages(11, "");
    const InputFile input{.url = folder.file("report.pdf", test::pagesPDF(pages, "0 1 0 rg 0 0 50 50 re f"))};
    const auto destination = folder.path() / "report";
    std::vector<double> progress;
    const WorkContext context{.progress = [&](double share) { progress.push_back(share); }};
    toImages({input, destination, {.imageFormat = ImageFormat::gif, .imageDPI = 72}, context});
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(destination))
        names.insert(entry.path().filename());
    EXPECT_EQ(names.size(), 11U);
    EXPECT_EQ(*names.begin(), "report 01.gif");
    EXPECT_EQ(*names.rbegin(), "report 11.gif");
    ASSERT_FALSE(progress.empty());
    EXPECT_TRUE(std::ranges::is_sorted(progress));
    EXPECT_EQ(progress.back(), 1);
}

TEST(ToImages, PagesTooLargeForTheFormatAreRefusedBeforeAnythingIsWritten) {
    const TemporaryFolder folder;
    const InputFile input{.url =
                              folder.file("long.pdf", test::pagesPDF({"", "/MediaBox [0 0 10 12000]"}, ""))};
    const WorkContext context;
    const auto refusal = [&](ImageFormat format, int dpi) {
        const auto destination = folder.path() / fmt::format("{} {}", fileExtension(format), dpi);
        try {
            toImages({input, destination, {.imageFormat = format, .imageDPI = dpi}, context});
        } catch (const PDFError& error) {
            return error.code() + (std::filesystem::exists(destination) ? ", but something is there" : "");
        }
        return std::string("none");
    };
    EXPECT_EQ(refusal(ImageFormat::webp, 99), "pageTooLarge");
    EXPECT_EQ(refusal(ImageFormat::heic, 99), "pageTooLarge");
    EXPECT_EQ(refusal(ImageFormat::jpeg, 400), "pageTooLarge");
    EXPECT_EQ(refusal(ImageFormat::png, 99), "none");
}

TEST(ToImages, AStopRequestEndsIt) {
    const TemporaryFolder folder;
    std::vector<std::string> pages(200, "");
    const InputFile input{.url = folder.file("a.pdf", test::pagesPDF(pages, "0 0 50 50 re f"))};
    const auto destination = folder.path() / "a";
    std::stop_source source;
    const WorkContext context{.progress = [&](double) { source.request_stop(); }, .stop = source.get_token()};
    EXPECT_THROW(toImages({input, destination, {}, context}), Cancelled);
}

}  // namespace
}  // namespace tamble::pdf
