#include "TinyPDF.h"

namespace tamble::pdf {
namespace {

PDFJobSettings with(const std::string& password) {
    PDFJobSettings settings;
    settings.password = password;
    return settings;
}

TEST(Passwords, AddedItOpensTheDocumentAndRemovedItIsTheSameAgain) {
    const TestFolder folder;
    TinyPDF pdf(2);
    pdf.setBookmarks({{"Two", "[" + pdf.pageRef(2) + " /Fit]"}});
    pdf.field("name", "Ada", {1});
    const auto file = pdf.save(folder, "in.pdf");
    for (const std::string password : {"four", "pässword", "密码密码", "with space at the end "}) {
        const auto locked = done(PDFTool::addPassword, file, with(password));
        EXPECT_THROW(ReadPDF{locked}, QPDFExc);
        ReadPDF opened(locked, password);
        EXPECT_EQ(opened.order(), "1,2");
        int revision = 0;
        int permissions = 0;
        EXPECT_TRUE(opened.qpdf().isEncrypted(revision, permissions));
        EXPECT_EQ(revision, 6);
        EXPECT_EQ(contentOf(locked).find("Text of page"), std::string::npos);
        EXPECT_EQ(contentOf(locked).find(password), std::string::npos);
        const auto removed = done(PDFTool::removePassword, locked, with(password));
        ReadPDF again(removed);
        EXPECT_FALSE(again.qpdf().isEncrypted());
        EXPECT_EQ(again.order(), "1,2");
        EXPECT_EQ(again.bookmarks(), "Two>2");
        EXPECT_EQ(again.fields(), "name=Ada");
    }
}

TEST(Passwords, EachFailureHasItsName) {
    const TestFolder folder;
    TinyPDF pdf(1);
    const auto plain = pdf.save(folder, "plain.pdf");
    const auto locked = pdf.saveLocked(folder, "locked.pdf", "open sesame", "owner");
    const auto reserved = pdf.saveLocked(folder, "reserved.pdf", "", "owner");
    const auto add = [](const auto& file, const std::string& password) {
        return outcome([&] { done(PDFTool::addPassword, file, with(password)); });
    };
    const auto remove = [](const auto& file, const std::string& password) {
        return outcome([&] { done(PDFTool::removePassword, file, with(password)); });
    };
    EXPECT_EQ(add(plain, ""), "passwordMissing");
    EXPECT_EQ(add(plain, "abc"), "passwordMissing");
    // Letters as people count them, not bytes: é as two characters, and a family of one.
    EXPECT_EQ(add(plain, "ae\u0301b"), "passwordMissing");
    EXPECT_EQ(add(plain, "\U0001F468\u200D\U0001F469\u200D\U0001F467"), "passwordMissing");
    EXPECT_EQ(add(locked, "something else"), "wrongPassword");
    EXPECT_EQ(remove(plain, ""), "skipped");
    EXPECT_EQ(remove(plain, "any"), "skipped");
    EXPECT_EQ(remove(locked, ""), "locked");
    EXPECT_EQ(remove(locked, "wrong"), "wrongPassword");
    EXPECT_EQ(remove(locked, "open sesame"), "done");
    EXPECT_EQ(remove(locked, "owner"), "done");
    EXPECT_EQ(remove(reserved, ""), "locked");
    EXPECT_EQ(remove(reserved, "wrong"), "couldNotRemovePassword");
    EXPECT_EQ(remove(reserved, "owner"), "done");
}

TEST(Passwords, OlderLocksOpenInTheirOwnEncodings) {
    const TestFolder folder;
    TinyPDF pdf(2);
    // "pässword" as programs of that time stored it.
    const auto old = pdf.save(folder, "old.pdf", [](QPDFWriter& writer) {
        writer.setR3EncryptionParametersInsecure("p\xe4ssword", "owner", true, true, true, true, true, true,
                                                 qpdf_r3p_full);
    });
    EXPECT_EQ(ReadPDF(done(PDFTool::removePassword, old, with("pässword"))).order(), "1,2");
    PDFJobSettings settings = with("pässword");
    settings.pageList = "2";
    const auto taken = done(PDFTool::extractPages, old, settings);
    EXPECT_THROW(ReadPDF{taken}, QPDFExc);
    EXPECT_EQ(ReadPDF(taken, "p\xe4ssword").order(), "2");
}

TEST(Passwords, ASealDoesNotOutliveThem) {
    const TestFolder folder;
    TinyPDF pdf(1);
    pdf.field("seal", "", {1}).replaceKey("/V", pdf.object("<< /Type /Sig >>"));
    pdf.root()
        .getKey("/AcroForm")
        .getKey("/Fields")
        .getArrayItem(0)
        .replaceKey("/FT", QPDFObjectHandle::newName("/Sig"));
    std::optional<ItemNote> left;
    done(PDFTool::addPassword, pdf.save(folder, "in.pdf"), with("open sesame"),
         {.note = [&](ItemNote note) { left = note; }});
    EXPECT_EQ(left, ItemNote::sealBroken);
}

}  // namespace
}  // namespace tamble::pdf
