#include <TambleCoreTests/PDF/Pictures/PictureBook.h>
#include <gtest/gtest.h>

namespace tamble::pdf {
namespace {

/// Pixels across of the pictures below; the pages are 8 inches wide, and 150 pixels an inch are kept.
constexpr int wide = 800;
constexpr int high = 600;

struct Book : PictureBook {
    QPDFObjectHandle photo = jpeg(photographJpeg(wide, high, 3), wide, high);

    int widthAfter(std::size_t onPage = 0) { return widthOf(shownOn(compressed(), onPage)); }
};

TEST(DrawnSize, OfThePageCounts) {
    Book book;
    book.page("q 144 0 0 108 10 10 cm /X Do Q", book.photo);
    EXPECT_EQ(book.widthAfter(), 300);
    // Drawn a second time, larger and turned.
    book.page("q 0.5 0 0 0.5 0 0 cm q 0 288 -216 0 300 300 cm /X Do Q Q", book.photo);
    EXPECT_EQ(book.widthAfter(), 300);
    book.page("0 288 -216 0 300 300 cm /X Do", book.photo);
    EXPECT_EQ(book.widthAfter(), 600);
    // Near enough to its own size.
    book.page("336 0 0 252 0 0 cm /X Do", book.photo);
    EXPECT_EQ(book.widthAfter(), wide);
}

TEST(DrawnSize, OfAPageInLargerUnitsCounts) {
    Book book;
    book.page("72 0 0 54 0 0 cm /X Do", book.photo).replaceKey("/UserUnit", QPDFObjectHandle::newInteger(3));
    EXPECT_EQ(book.widthAfter(), 450);
}

TEST(DrawnSize, IsFollowedThroughForms) {
    Book book;
    const auto inner = book.form("0.5 0 0 0.5 0 0 cm /X Do", book.photo);
    const auto outer = book.form("/X Do", inner, {{"/Matrix", "[2 0 0 2 0 0]"}});
    book.page("144 0 0 108 0 0 cm /X Do", outer);
    const Document result = book.compressed();
    auto form = shownOn(result, 0).getDict().getKey("/Resources").getKey("/XObject").getKey("/X");
    EXPECT_EQ(widthOf(form.getDict().getKey("/Resources").getKey("/XObject").getKey("/X")), 300);
}

TEST(DrawnSize, IsFollowedIntoPatternsAndSoftMasks) {
    Book book;
    const auto other = book.jpeg(photographJpeg(wide, high, 1), wide, high, {{"/ColorSpace", "/DeviceGray"}});
    auto pattern =
        book.form("144 0 0 108 0 0 cm /X Do", book.photo, {{"/PatternType", "1"}, {"/Subtype", "/None"}});
    auto group = book.form("1 0 0 1 0 0 cm /X Do", other);
    auto page = book.page("q 72 0 0 54 0 0 cm /G gs Q /Pattern cs /P scn 0 0 576 576 re f",
                          book.form("", QPDFObjectHandle::newNull()));
    auto resources = page.getKey("/Resources");
    resources.replaceKey("/Pattern", QPDFObjectHandle::parse("<< >>"));
    resources.getKey("/Pattern").replaceKey("/P", pattern);
    resources.replaceKey("/ExtGState", QPDFObjectHandle::parse("<< /G << /SMask << /S /Luminosity >> >> >>"));
    resources.getKey("/ExtGState").getKey("/G").getKey("/SMask").replaceKey("/G", group);
    const Document result = book.compressed();
    auto after = QPDFObjectHandle(result.pages().front()).getKey("/Resources");
    const auto pictureOf = [](QPDFObjectHandle form) {
        return form.getDict().getKey("/Resources").getKey("/XObject").getKey("/X");
    };
    EXPECT_EQ(widthOf(pictureOf(after.getKey("/Pattern").getKey("/P"))), 300);
    EXPECT_EQ(widthOf(pictureOf(after.getKey("/ExtGState").getKey("/G").getKey("/SMask").getKey("/G"))), 150);
}

TEST(DrawnSize, OfAnAnnotationIsThatOfItsRectangle) {
    Book book;
    auto page = book.page("", QPDFObjectHandle::newNull());
    auto annotation = QPDFObjectHandle::parse("<< /Subtype /Stamp /Rect [10 10 154 118] /AP << >> >>");
    annotation.getKey("/AP").replaceKey(
        "/N", book.form("10 0 0 10 0 0 cm /X Do", book.photo, {{"/BBox", "[0 0 10 10]"}}));
    auto annotations = QPDFObjectHandle::newArray();
    annotations.appendItem(annotation);
    page.replaceKey("/Annots", annotations);
    const Document result = book.compressed();
    auto after = QPDFObjectHandle(result.pages().front()).getKey("/Annots").getArrayItem(0);
    auto form = after.getKey("/AP").getKey("/N");
    EXPECT_EQ(widthOf(form.getDict().getKey("/Resources").getKey("/XObject").getKey("/X")), 300);
}

TEST(DrawnSize, IsUnknownForWhatIsNeverDrawnOrDrawnByGlyphs) {
    Book book;
    book.page("", book.photo);
    EXPECT_EQ(book.widthAfter(), wide);
    auto page = book.page("72 0 0 54 0 0 cm /X Do", book.photo);
    EXPECT_EQ(book.widthAfter(), 150);
    auto font = QPDFObjectHandle::parse(
        "<< /Type /Font /Subtype /Type3 /CharProcs << >> /Resources << /XObject << >> >> >>");
    font.getKey("/Resources").getKey("/XObject").replaceKey("/X", book.photo);
    page.getKey("/Resources").replaceKey("/Font", QPDFObjectHandle::parse("<< >>"));
    page.getKey("/Resources").getKey("/Font").replaceKey("/F", font);
    EXPECT_EQ(book.widthAfter(), wide);
}

TEST(DrawnSize, IsUnknownWhereContentIsDamaged) {
    Book book;
    auto page = book.page("72 0 0 54 0 0 cm /X Do", book.photo);
    page.replaceKey("/Contents", book.stream({1, 2, 3}, {{"/Filter", "/FlateDecode"}}));
    EXPECT_EQ(book.widthAfter(), wide);
}

TEST(DrawnSize, EndsWithFormsThatDrawThemselvesOrEachOtherWithoutEnd) {
    Book book;
    auto itself = book.form("72 0 0 54 0 0 cm /X Do /Y Do", book.photo);
    itself.getDict().getKey("/Resources").getKey("/XObject").replaceKey("/Y", itself);
    book.page("/X Do", itself);
    auto many = book.photo;
    std::string tenTimes;
    for (int i = 0; i < 10; ++i) tenTimes += "/X Do ";
    for (int level = 0; level < 30; ++level)
        many = book.form(tenTimes, many, {{"/Level", std::to_string(level)}});
    book.page("/X Do", many);
    const Document result = book.compressed();
    auto form = shownOn(result, 0);
    // A thousand million million million million times is too often to follow.
    EXPECT_EQ(widthOf(form.getDict().getKey("/Resources").getKey("/XObject").getKey("/X")), wide);
}

}  // namespace
}  // namespace tamble::pdf
