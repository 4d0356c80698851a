#include "TinyPDF.h"

namespace tamble::pdf {
namespace {

using testing::HasSubstr;
using testing::Not;

class Split : public testing::Test {
  protected:
    std::vector<std::filesystem::path> pieces(const std::filesystem::path& file, const PDFSplitMode& mode,
                                              const std::string& password = {}) {
        PDFJobSettings settings;
        settings.split = mode;
        settings.password = password;
        std::vector<std::filesystem::path> found;
        for (const auto& entry : std::filesystem::directory_iterator(done(PDFTool::split, file, settings)))
            found.push_back(entry.path());
        std::ranges::sort(found);
        return found;
    }

    TestFolder folder;
};

TEST_F(Split, PiecesHoldTheirPagesInOrder) {
    TinyPDF pdf(12);
    const auto file = pdf.save(folder, "in.pdf");
    std::string orders;
    for (const auto& piece : pieces(file, split_mode::Every{5})) orders += ReadPDF(piece).order() + "|";
    EXPECT_EQ(orders, "1,2,3,4,5|6,7,8,9,10|11,12|");
    const auto ranges = pieces(file, split_mode::Ranges{"9,1-3"});
    ASSERT_EQ(ranges.size(), 2U);
    EXPECT_EQ(ranges[0].filename(), "in 1, page 9.pdf");
    EXPECT_EQ(ReadPDF(ranges[1]).order(), "1,2,3");
    EXPECT_EQ(pieces(file, split_mode::EveryPage{}).size(), 12U);
    EXPECT_EQ(outcome([&] { pieces(file, split_mode::Ranges{"1,13"}); }), "invalidPageRange");
}

TEST_F(Split, APieceHasWhatItsPagesNeedAndNoMore) {
    TinyPDF pdf(4);
    std::string pictures;
    for (int page = 1; page <= 4; ++page) {
        auto drawn = pdf.stream(
            "/Type /XObject /Subtype /Image /Width 1 /Height 1 /ColorSpace /DeviceGray "
            "/BitsPerComponent 8",
            fmt::format("picture {}", page));
        pictures += fmt::format("/Im{} {} ", page, TinyPDF::ref(drawn));
    }
    pdf.root().getKey("/Pages").replaceKey("/Resources", pdf.object("<< /XObject << " + pictures + ">> >>"));
    pdf.root().getKey("/Pages").replaceKey("/Rotate", QPDFObjectHandle::newInteger(90));
    auto group = pdf.object("<< /T (group) /Kids [] >>");
    pdf.setRoot("/AcroForm", "<< /Fields [] /DA (/Helv 0 Tf) >>");
    pdf.root().getKey("/AcroForm").getKey("/Fields").appendItem(group);
    for (int page = 1; page <= 4; ++page) {
        pdf.page(page).removeKey("/Resources");
        pdf.page(page).replaceKey("/Contents",
                                  pdf.stream("", fmt::format("(Text of page {0}) Tj /Im{0} Do", page)));
        group.getKey("/Kids").appendItem(
            pdf.annotate(page, fmt::format("/Subtype /Widget /FT /Tx /T (f{0}) /V (value {0}) /Parent {1}",
                                           page, TinyPDF::ref(group))));
    }
    pdf.field("both", "shared value", {1, 4});
    pdf.setBookmarks({{"Bookmark1", "[" + pdf.pageRef(1) + " /Fit]"},
                      {"Bookmark2", "[" + pdf.pageRef(2) + " /Fit]"},
                      {"Bookmark4", "(four)"}});
    pdf.setRoot("/Names", fmt::format("<< /Dests << /Names [(four) [{} /Fit]] >> >>", pdf.pageRef(4)));
    pdf.link(1, "(four)");
    pdf.link(1, "[" + pdf.pageRef(2) + " /Fit]");
    pdf.annotate(1, "/Subtype /Link /A << /S /URI /URI (https://example.org) >>");
    pdf.setRoot("/PageLabels", "<< /Nums [0 << /S /r >> 2 << /S /D /P (A-) >>] >>");
    pdf.qpdf().getTrailer().replaceKey("/Info", pdf.object("<< /Title (Mine) >>"));

    const auto made = pieces(pdf.save(folder, "in.pdf"), split_mode::Every{2});
    ASSERT_EQ(made.size(), 2U);
    ReadPDF first(made[0]);
    EXPECT_EQ(first.order(), "1,2");
    EXPECT_EQ(first.bookmarks(), "Bookmark1>1 Bookmark2>2");
    EXPECT_EQ(first.fields(), "both=shared value,group.f1=value 1,group.f2=value 2");
    EXPECT_EQ(first.labels(), "r1,r2");
    EXPECT_EQ(first.pages()[0].getKey("/Rotate").getIntValue(), 90);
    auto links = first.links(1);
    ASSERT_EQ(links.size(), 3U);
    EXPECT_EQ(first.shownByLink(links[0]), "");
    EXPECT_EQ(first.shownByLink(links[1]), "2");
    EXPECT_TRUE(links[2].getKey("/A").getKey("/URI").isString());
    const std::string all = first.everything();
    for (const char* kept : {"picture 1", "picture 2", "Mine"}) EXPECT_THAT(all, HasSubstr(kept));
    for (const char* others : {"picture 3", "picture 4", "Text of page 3", "Bookmark4", "value 3", "value 4"})
        EXPECT_THAT(all, Not(HasSubstr(others)));
    ReadPDF second(made[1]);
    EXPECT_EQ(second.labels(), "A-D1,A-D2");
    EXPECT_EQ(second.bookmarks(), "Bookmark4>4");
    EXPECT_EQ(second.fields(), "both=shared value,group.f3=value 3,group.f4=value 4");
}

TEST_F(Split, ManyPiecesAreTheSameWhoeverWritesThem) {
    TinyPDF pdf(40);
    for (int page = 1; page <= 40; ++page) {
        pdf.link(page, "[" + pdf.pageRef(page) + " /Fit]");
        pdf.field("f" + std::to_string(page), "v" + std::to_string(page), {page});
    }
    const auto made = pieces(pdf.save(folder, "in.pdf"), split_mode::EveryPage{});
    ASSERT_EQ(made.size(), 40U);
    for (std::size_t i = 0; i < made.size(); ++i) {
        ReadPDF piece(made[i]);
        const std::string number = std::to_string(i + 1);
        EXPECT_EQ(piece.order(), number);
        EXPECT_EQ(piece.fields(), "f" + number + "=v" + number);
        EXPECT_EQ(piece.shownByLink(piece.links(1).at(0)), number);
    }
}

TEST_F(Split, PiecesOfALockedDocumentStayLocked) {
    TinyPDF pdf(2);
    const auto file = pdf.saveLocked(folder, "in.pdf", "open sesame", "owner");
    EXPECT_EQ(outcome([&] { pieces(file, split_mode::EveryPage{}); }), "locked");
    EXPECT_EQ(outcome([&] { pieces(file, split_mode::EveryPage{}, "wrong"); }), "wrongPassword");
    const auto made = pieces(file, split_mode::EveryPage{}, "open sesame");
    ASSERT_EQ(made.size(), 2U);
    for (const auto& piece : made) EXPECT_THROW(ReadPDF{piece}, QPDFExc);
    EXPECT_EQ(ReadPDF(made[1], "open sesame").order(), "2");
}

TEST_F(Split, MergedAgainItIsWhatItWas) {
    TinyPDF pdf(9);
    pdf.link(1, "[" + pdf.pageRef(2) + " /Fit]");
    pdf.field("name", "Ada", {4});
    auto again = ReadPDF(merged(pieces(pdf.save(folder, "in.pdf"), split_mode::Every{2})));
    EXPECT_EQ(again.order(), "1,2,3,4,5,6,7,8,9");
    EXPECT_EQ(again.fields(), "name=Ada");
    EXPECT_EQ(again.shownByLink(again.links(1).at(0)), "2");
}

}  // namespace
}  // namespace tamble::pdf
