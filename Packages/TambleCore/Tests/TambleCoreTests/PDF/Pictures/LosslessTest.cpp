#include <TambleCore/PDF/PDFError.h>

#include <TambleCoreTests/PDF/Pictures/PictureBook.h>
#include <gtest/gtest.h>

namespace tamble::pdf {
namespace {

Bytes text(const std::string& from) {
    return {from.begin(), from.end()};
}

std::string repeated(const std::string& part, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += part;
    return all;
}

/// A document that carries a stream of any kind.
QPDFObjectHandle carried(PictureBook& book, const QPDFObjectHandle& stream) {
    book.page("", QPDFObjectHandle::newNull()).replaceKey("/Thing", stream);
    return stream;
}

QPDFObjectHandle carriedIn(const Document& document, std::size_t page = 0) {
    return QPDFObjectHandle(document.pages().at(page)).getKey("/Thing");
}

TEST(LosslessStreams, AreDeflatedWhateverTheyWere) {
    const std::string content = repeated("Some words, and some more. ", 40);
    std::string hex;
    for (const char each : content) hex += fmt::format("{:02x}", static_cast<unsigned char>(each));
    for (const auto& [coded, keys] : std::vector<std::pair<Bytes, PictureBook::Keys>>{
             {text(content), {}},
             {text(hex + ">"), {{"/Filter", "/ASCIIHexDecode"}}},
             {deflatedBytes(deflatedBytes(text(content))), {{"/Filter", "[/FlateDecode /FlateDecode]"}}}}) {
        PictureBook book;
        carried(book, book.stream(coded, keys));
        const Document result = book.compressed();
        EXPECT_EQ(samplesOf(carriedIn(result)), text(content));
        EXPECT_LE(codedBytes(carriedIn(result)).size(), coded.size());
        EXPECT_LT(codedBytes(carriedIn(result)).size(), 100);
    }
}

TEST(LosslessStreams, StayAsTheyAreWhenDamagedOrTooLarge) {
    Bytes damaged = deflatedBytes(text(repeated("words ", 1000)));
    damaged[damaged.size() / 2] ^= 0x55U;
    const Bytes plain = deflatedBytes(Bytes(std::size_t{64} << 20U));
    const Bytes bomb = deflatedBytes(plain);
    PictureBook book;
    carried(book, book.stream(damaged, {{"/Filter", "/FlateDecode"}}));
    carried(book, book.stream(plain, {{"/Filter", "/FlateDecode"}}));
    carried(book, book.stream(bomb, {{"/Filter", "[/FlateDecode /FlateDecode]"}}));
    const Document result = book.compressed();
    EXPECT_EQ(codedBytes(carriedIn(result, 0)), damaged);
    EXPECT_EQ(codedBytes(carriedIn(result, 1)), plain);
    EXPECT_EQ(codedBytes(carriedIn(result, 2)), bomb);
}

TEST(LosslessStreams, MetadataStaysLegible) {
    const std::string packet = repeated("<x:xmpmeta/> ", 100);
    PictureBook book;
    book.page("", QPDFObjectHandle::newNull());
    book.qpdf().getRoot().replaceKey(
        "/Metadata", book.stream(text(packet), {{"/Type", "/Metadata"}, {"/Subtype", "/XML"}}));
    const Document result = book.compressed();
    EXPECT_EQ(codedBytes(result.root().getKey("/Metadata")), text(packet));
}

TEST(Duplicates, BecomeOneAlsoWhereTheyAreMadeOfEachOther) {
    PictureBook book;
    for (int i = 0; i < 2; ++i) {
        auto mask = book.picture(photograph(64, 64, 1), 64, 64, {{"/ColorSpace", "/DeviceGray"}});
        auto photo = book.jpeg(photographJpeg(64, 64, 3), 64, 64);
        photo.getDict().replaceKey("/SMask", mask);
        book.page("72 0 0 72 0 0 cm /X Do", photo);
    }
    // Of the same length, but not the same.
    Bytes other = photograph(64, 64, 3);
    book.page("72 0 0 72 0 0 cm /X Do", book.picture(other, 64, 64, {{"/Filter", "null"}}));
    other[5000] ^= 1U;
    book.page("72 0 0 72 0 0 cm /X Do", book.picture(other, 64, 64, {{"/Filter", "null"}}));
    const Document result = book.compressed();
    ASSERT_EQ(result.pageCount(), 4);
    EXPECT_EQ(shownOn(result, 0).getObjectID(), shownOn(result, 1).getObjectID());
    EXPECT_NE(shownOn(result, 2).getObjectID(), shownOn(result, 3).getObjectID());
}

TEST(Duplicates, AreNotWhatMeansSomethingByItself) {
    PictureBook book;
    const auto added = [&](const char* object) {
        auto page = book.page("", QPDFObjectHandle::newNull());
        page.replaceKey("/Thing", book.qpdf().makeIndirectObject(QPDFObjectHandle::parse(object)));
    };
    for (int i = 0; i < 2; ++i) {
        added("<< /Type /OCG /Name (Layer) >>");
        added("<< /Type /Annot /Subtype /Link /Rect [0 0 1 1] >>");
        added("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
    }
    const Document result = book.compressed();
    const auto isOne = [&](std::size_t page) {
        return carriedIn(result, page).getObjectID() == carriedIn(result, page + 3).getObjectID();
    };
    EXPECT_FALSE(isOne(0));
    EXPECT_FALSE(isOne(1));
    EXPECT_TRUE(isOne(2));
    EXPECT_EQ(result.pageCount(), 6);
}

TEST(Compressing, KeepsLocksAndTellsOfSeals) {
    PictureBook book;
    book.page("144 0 0 108 0 0 cm /X Do", book.jpeg(photographJpeg(800, 600, 3), 800, 600));
    const auto lock = [](QPDFWriter& writer) {
        writer.setR6EncryptionParameters("secret", "secret", true, true, true, true, true, true,
                                         qpdf_r3p_full, true);
    };
    EXPECT_THROW(book.compressed("", lock), PDFError);
    const Document result = book.compressed("secret", lock);
    EXPECT_TRUE(result.isLocked());
    EXPECT_EQ(widthOf(shownOn(result, 0)), 300);
    EXPECT_EQ(book.note(), std::nullopt);
    book.qpdf().getRoot().replaceKey(
        "/AcroForm", QPDFObjectHandle::parse("<< /Fields [<< /FT /Sig /T (a) /V << /Type /Sig >> >>] >>"));
    book.compressed();
    EXPECT_EQ(book.note(), ItemNote::sealBroken);
}

}  // namespace
}  // namespace tamble::pdf
