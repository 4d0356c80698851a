#include "TinyPDF.h"
#include <qpdf/QPDFPageObjectHelper.hh>

/// Pages in a new order, turned, deleted, taken out.
namespace tamble::pdf {
namespace {

using testing::HasSubstr;
using testing::Not;

class EditPages : public testing::Test {
  protected:
    std::filesystem::path edited(TinyPDF& pdf, const std::vector<PageEdit>& pages) {
        PDFJobSettings settings;
        settings.pages = pages;
        return done(PDFTool::organize, pdf.save(folder, "in.pdf"), settings);
    }
    std::filesystem::path without(TinyPDF& pdf, const std::string& list) {
        PDFJobSettings settings;
        settings.pageList = list;
        return done(PDFTool::deletePages, pdf.save(folder, "in.pdf"), settings);
    }

    TestFolder folder;
};

/// Fails with the words of the text that still are in the file.
void expectNothingOf(const std::filesystem::path& file, const std::vector<std::string>& secrets) {
    const std::string all = ReadPDF(file).everything();
    for (const auto& secret : secrets) EXPECT_THAT(all.find(secret), std::string::npos) << secret;
}

TEST_F(EditPages, EachToolReadsItsList) {
    TinyPDF pdf(4);
    const auto file = pdf.save(folder, "in.pdf");
    PDFJobSettings settings;
    settings.pageList = "4,1-2:90";
    ReadPDF ordered(done(PDFTool::organize, file, settings));
    EXPECT_EQ(ordered.order(), "4,1,2");
    EXPECT_FALSE(ordered.pages()[0].hasKey("/Rotate"));
    EXPECT_EQ(ordered.pages()[2].getKey("/Rotate").getIntValue(), 90);
    settings.pageList = "2,4";
    EXPECT_EQ(ReadPDF(done(PDFTool::deletePages, file, settings)).order(), "1,3");
    EXPECT_EQ(ReadPDF(done(PDFTool::extractPages, file, settings)).order(), "2,4");
    settings.pageList = "1-4";
    EXPECT_EQ(outcome([&] { done(PDFTool::deletePages, file, settings); }), "noPages");
    settings.pageList = "5";
    EXPECT_EQ(outcome([&] { done(PDFTool::extractPages, file, settings); }), "invalidPageRange");
}

TEST_F(EditPages, TurnsAddToThePagesOwn) {
    TinyPDF pdf(3);
    auto tree = pdf.root().getKey("/Pages");
    tree.replaceKey("/Rotate", QPDFObjectHandle::newInteger(90));
    pdf.page(2).replaceKey("/Rotate", QPDFObjectHandle::newInteger(180));
    ReadPDF result(edited(pdf, {{0, 90}, {1, 270}, {2, -90}}));
    std::vector<long long> turns;
    for (auto page : result.pages()) turns.push_back(page.getKey("/Rotate").getIntValue());
    EXPECT_THAT(turns, testing::ElementsAre(180, 90, 0));
}

TEST_F(EditPages, ADeletedPageLeavesNothingOfItself) {
    TinyPDF pdf(3);
    const std::string picture = "the deleted picture";
    auto drawn = pdf.stream(
        "/Type /XObject /Subtype /Image /Width 1 /Height 1 /ColorSpace /DeviceGray "
        "/BitsPerComponent 8",
        picture);
    auto other = pdf.stream(
        "/Type /XObject /Subtype /Image /Width 1 /Height 1 /ColorSpace /DeviceGray "
        "/BitsPerComponent 8",
        "the kept picture");
    // One list of resources for all pages, as many writers do.
    pdf.root().getKey("/Pages").replaceKey(
        "/Resources",
        pdf.object(fmt::format("<< /XObject << /Secret {} /Kept {} >> /Font << /F1 << /Type /Font "
                               "/Subtype /Type1 /BaseFont /Helvetica >> >> >>",
                               TinyPDF::ref(drawn), TinyPDF::ref(other))));
    for (int page = 1; page <= 3; ++page) {
        pdf.page(page).removeKey("/Resources");
        pdf.page(page).replaceKey("/Contents", pdf.stream("", fmt::format("(Text of page {}) Tj /{} Do", page,
                                                                          page == 2 ? "Secret" : "Kept")));
    }
    pdf.setBookmarks({{"First heading", "[" + pdf.pageRef(1) + " /Fit]"},
                      {"Secret heading", "[" + pdf.pageRef(2) + " /Fit]"}});
    pdf.setRoot("/Names", fmt::format("<< /Dests << /Names [(kept) [{} /Fit] (secret.name) [{} /Fit]] >> >>",
                                      pdf.pageRef(1), pdf.pageRef(2)));
    pdf.link(1, "(secret.name)");
    pdf.link(3, "[" + pdf.pageRef(2) + " /XYZ 0 0 0]");
    pdf.link(3, "(kept)");
    pdf.annotate(2, "/Subtype /Text /Contents (secret note)");
    pdf.field("secret field", "secret value", {2});
    pdf.field("kept field", "kept value", {1, 2});
    pdf.tag("words");
    pdf.setRoot("/PageLabels", "<< /Nums [0 << /P (kept-) >> 1 << /P (secret-) >> 2 << /P (last-) >>] >>");
    pdf.setRoot("/OpenAction", "[" + pdf.pageRef(2) + " /Fit]");

    const auto file = without(pdf, "2");
    expectNothingOf(file, {"Text of page 2", picture, "Secret heading", "secret.name", "secret note",
                           "secret field", "secret value", "words 2", "secret-"});
    ReadPDF result(file);
    EXPECT_EQ(result.order(), "1,3");
    EXPECT_EQ(result.bookmarks(), "First heading>1");
    EXPECT_EQ(result.fields(), "kept field=kept value");
    EXPECT_EQ(result.labels(), "kept-,last-");
    EXPECT_EQ(result.shownByLink(result.links(1).at(0)), "");
    EXPECT_EQ(result.shownByLink(result.links(2).at(0)), "");
    EXPECT_EQ(result.shownByLink(result.links(2).at(1)), "1");
    EXPECT_FALSE(result.root().hasKey("/OpenAction"));
    const std::string all = result.everything();
    for (const char* kept : {"the kept picture", "words 1", "words 3"}) EXPECT_THAT(all, HasSubstr(kept));
}

TEST_F(EditPages, TheOnlySharedPictureGoesWithItsPage) {
    TinyPDF pdf(2);
    auto drawn = pdf.stream(
        "/Type /XObject /Subtype /Image /Width 1 /Height 1 /ColorSpace /DeviceGray "
        "/BitsPerComponent 8",
        "the deleted picture");
    auto shared = pdf.object("<< /XObject << /Secret " + TinyPDF::ref(drawn) +
                             " >> /Font << /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >>");
    for (const int page : {1, 2}) pdf.page(page).replaceKey("/Resources", shared);
    pdf.page(2).replaceKey("/Contents", pdf.stream("", "(Text of page 2) Tj /Secret Do"));
    expectNothingOf(without(pdf, "2"), {"the deleted picture"});
}

TEST_F(EditPages, FieldsBelowOthersAndInTheOrderOfCalculationGoToo) {
    TinyPDF pdf(2);
    pdf.setRoot("/AcroForm", "<< /Fields [] >>");
    auto group = pdf.object("<< /T (group) /Kids [] >>");
    for (const int page : {1, 2}) {
        auto field =
            pdf.annotate(page, fmt::format("/Subtype /Widget /FT /Tx /T (f{0}) /V (value {0}) /Parent {1}",
                                           page, TinyPDF::ref(group)));
        group.getKey("/Kids").appendItem(field);
    }
    auto form = pdf.root().getKey("/AcroForm");
    form.getKey("/Fields").appendItem(group);
    form.replaceKey("/CO", group.getKey("/Kids").shallowCopy());
    // Of other pages' buttons, too.
    pdf.annotate(1, fmt::format("/Subtype /Widget /A << /S /ResetForm /Fields [{}] >>",
                                group.getKey("/Kids").getArrayItem(1).unparse()));
    const auto file = without(pdf, "2");
    expectNothingOf(file, {"value 2"});
    EXPECT_EQ(ReadPDF(file).fields(), "=,group.f1=value 1");
}

TEST_F(EditPages, AnAnnotationOfTwoPagesStaysOnTheOther) {
    TinyPDF pdf(2);
    auto field = pdf.field("both", "kept value", {1});
    pdf.page(2).replaceKey("/Annots", pdf.page(1).getKey("/Annots").shallowCopy());
    EXPECT_EQ(ReadPDF(without(pdf, "2")).fields(), "both=kept value");
}

TEST_F(EditPages, LabelsLinksAndBookmarksFollowTheirPages) {
    TinyPDF pdf(5);
    pdf.setRoot("/PageLabels", "<< /Nums [0 << /S /r >> 2 << /S /D /St 1 >>] >>");
    pdf.setBookmarks({{"One", "[" + pdf.pageRef(1) + " /Fit]"}, {"Four", "(four)"}});
    pdf.setRoot("/Names",
                fmt::format("<< /Dests << /Names [(four) << /D [{} /Fit] >>] >> >>", pdf.pageRef(4)));
    pdf.link(1, "(four)");
    ReadPDF result(edited(pdf, {{4, 0}, {3, 0}, {2, 0}, {1, 0}, {0, 0}}));
    EXPECT_EQ(result.order(), "5,4,3,2,1");
    EXPECT_EQ(result.labels(), "D3,D2,D1,r2,r1");
    EXPECT_EQ(result.bookmarks(), "One>1 Four>4");
    EXPECT_EQ(result.shownByLink(result.links(5).at(0)), "4");
}

TEST_F(EditPages, APageListedTwiceBecomesTwo) {
    TinyPDF pdf(2);
    pdf.field("name", "Ada", {1});
    pdf.link(1, "[" + pdf.pageRef(2) + " /Fit]");
    pdf.setBookmarks({{"One", "[" + pdf.pageRef(1) + " /Fit]"}});
    ReadPDF result(edited(pdf, {{0, 0}, {1, 0}, {0, 90}}));
    EXPECT_EQ(result.order(), "1,2,1");
    EXPECT_NE(result.pages()[0].getObjGen(), result.pages()[2].getObjGen());
    EXPECT_FALSE(result.pages()[0].hasKey("/Rotate"));
    EXPECT_EQ(result.bookmarks(), "One>1");
    EXPECT_EQ(result.shownByLink(result.links(3).at(0)), "2");
    // Two fields of their own: what is typed into one is not shown in the other.
    const std::string fields = result.fields();
    EXPECT_EQ(std::ranges::count(fields, '='), 2) << fields;
    EXPECT_THAT(fields, HasSubstr("name=Ada"));
}

TEST_F(EditPages, LinksThatNameTheirPlacesStayWhole) {
    TinyPDF pdf(3);
    // Names of the older kind are looked up in another table than strings.
    pdf.setRoot("/Dests",
                fmt::format("<< /old [{} /Fit] /gone [{} /Fit] >>", pdf.pageRef(1), pdf.pageRef(2)));
    // Names are bytes: this one is "Índice" in UTF-8, which is no text in the encodings of PDFs.
    pdf.setRoot("/Names",
                fmt::format("<< /Dests << /Names [<FEFF00C4> [{0} /Fit] <C38D6E64696365> [{0} /Fit] "
                            "<C3AD7A> [{1} /Fit] (gone too) [{2} /Fit]] >> >>",
                            pdf.pageRef(1), pdf.pageRef(3), pdf.pageRef(2)));
    for (const char* name : {"/old", "<FEFF00C4>", "<C38D6E64696365>", "<C3AD7A>"}) pdf.link(3, name);
    pdf.annotate(3, "/Subtype /Link /A << /S /GoTo /D <C3AD7A> >>");
    ReadPDF result(without(pdf, "2"));
    std::string shown;
    for (const auto& link : result.links(2)) shown += result.shownByLink(link) + " ";
    EXPECT_EQ(shown, "1 1 1 3 3 ");
}

TEST_F(EditPages, PlacesGivenByPageNumbersKeepTheirPages) {
    TinyPDF pdf(3);
    pdf.setBookmarks({{"Two", "[1 /Fit]"}, {"Three", "[2 /Fit]"}});
    pdf.link(3, "[0 /Fit]");
    ReadPDF turned(edited(pdf, {{2, 0}, {1, 0}, {0, 0}}));
    EXPECT_EQ(turned.bookmarks(), "Two>2 Three>3");
    EXPECT_EQ(turned.shownByLink(turned.links(1).at(0)), "1");
    ReadPDF shortened(without(pdf, "2"));
    EXPECT_EQ(shortened.bookmarks(), "Three>3");
    EXPECT_EQ(shortened.shownByLink(shortened.links(2).at(0)), "1");
}

TEST_F(EditPages, BookmarksInLoopsEnd) {
    TinyPDF pdf(2);
    pdf.setBookmarks({{"One", "[" + pdf.pageRef(1) + " /Fit]"}, {"Two", "[" + pdf.pageRef(2) + " /Fit]"}});
    auto first = pdf.root().getKey("/Outlines").getKey("/First");
    first.getKey("/Next").replaceKey("/Next", first);
    first.replaceKey("/First", pdf.root().getKey("/Outlines"));
    EXPECT_EQ(ReadPDF(without(pdf, "1")).bookmarks(), "Two>2");
}

TEST_F(EditPages, SealedDocumentsAreNoted) {
    TinyPDF pdf(2);
    pdf.field("seal", "", {1});
    auto field = pdf.root().getKey("/AcroForm").getKey("/Fields").getArrayItem(0);
    field.replaceKey("/FT", QPDFObjectHandle::newName("/Sig"));
    const auto noteFor = [&](const std::filesystem::path& file) {
        std::optional<ItemNote> left;
        PDFJobSettings settings;
        settings.pageList = "2,1";
        done(PDFTool::organize, file, settings, {.note = [&](ItemNote note) { left = note; }});
        return left;
    };
    field.removeKey("/V");
    EXPECT_EQ(noteFor(pdf.save(folder, "to be signed.pdf")), std::nullopt);
    field.replaceKey("/V", pdf.object("<< /Type /Sig /Contents <00> >>"));
    EXPECT_EQ(noteFor(pdf.save(folder, "signed.pdf")), ItemNote::sealBroken);
}

TEST_F(EditPages, ALockedDocumentStaysLocked) {
    TinyPDF pdf(3);
    PDFJobSettings settings;
    settings.pageList = "1,3";
    settings.password = "öffne";
    const auto file =
        done(PDFTool::extractPages, pdf.saveLocked(folder, "in.pdf", "öffne", "owner"), settings);
    EXPECT_THROW(ReadPDF{file}, QPDFExc);
    EXPECT_EQ(ReadPDF(file, "öffne").order(), "1,3");
}

TEST_F(EditPages, TitleAndDatesStayAndNothingIsAdded) {
    TinyPDF pdf(2);
    pdf.qpdf().getTrailer().replaceKey("/Info", pdf.object("<< /Title (Mine) /CreationDate (D:20200102) >>"));
    ReadPDF result(without(pdf, "1"));
    EXPECT_EQ(result.qpdf().getTrailer().getKey("/Info").getDictAsMap().size(), 2U);
    EXPECT_THAT(result.everything(), Not(HasSubstr("Producer")));
}

}  // namespace
}  // namespace tamble::pdf
