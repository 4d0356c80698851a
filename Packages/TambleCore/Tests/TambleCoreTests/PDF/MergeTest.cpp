#include "TinyPDF.h"
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFNumberTreeObjectHelper.hh>

namespace tamble::pdf {
namespace {

using testing::HasSubstr;

TEST(Merge, BookmarksLinksAndNamesOfEachStayItsOwn) {
    const TestFolder folder;
    std::vector<std::filesystem::path> files;
    for (const std::string name : {"a", "b"}) {
        TinyPDF pdf(2);
        // Each document has its places under the same names, of both kinds.
        const int there = name == "a" ? 1 : 2;
        pdf.setRoot("/Names",
                    fmt::format("<< /Dests << /Names [(start) [{} /Fit]] >> >>", pdf.pageRef(there)));
        pdf.setRoot("/Dests", fmt::format("<< /old [{} /Fit] >>", pdf.pageRef(there)));
        pdf.setBookmarks({{"Start", "(start)"}, {"Old", "/old"}, {"Number", "[1 /Fit]"}});
        pdf.link(1, "(start)");
        pdf.link(1, "/old");
        pdf.annotate(1, "/Subtype /Link /A << /S /GoTo /D (start) >>");
        if (name == "b") {
            for (const int page : {1, 2}) {
                pdf.page(page).replaceKey("/Contents",
                                          pdf.stream("", fmt::format("(Text of page {}) Tj", page + 10)));
            }
        }
        files.push_back(pdf.save(folder, name + ".pdf"));
    }
    files.push_back(TinyPDF(1).save(folder, "plain.pdf"));
    ReadPDF result(merged(files));
    EXPECT_EQ(result.order(), "1,2,11,12,1");
    EXPECT_EQ(result.bookmarks(), "a>1(Start>1 Old>1 Number>2) b>11(Start>12 Old>12 Number>12) plain>1");
    std::string shown;
    for (const int page : {1, 3}) {
        for (const auto& link : result.links(page)) shown += result.shownByLink(link) + " ";
    }
    EXPECT_EQ(shown, "1 1 1 12 12 12 ");
}

TEST(Merge, FieldsAndAttachmentsOfEqualNamesStayApart) {
    const TestFolder folder;
    std::vector<std::filesystem::path> files;
    for (const std::string name : {"a", "b", "c"}) {
        TinyPDF pdf(1);
        pdf.field("name", "value of " + name, {1});
        pdf.attach("data.txt", "attachment of " + name);
        files.push_back(pdf.save(folder, name + ".pdf"));
    }
    ReadPDF result(merged(files));
    const std::string fields = result.fields();
    for (const char* value : {"=value of a", "=value of b", "=value of c"})
        EXPECT_THAT(fields, HasSubstr(value));
    EXPECT_EQ(fields.find("name=value of b"), std::string::npos) << "two fields of one name are one field";
    std::string attached;
    for (const auto& [name, file] : QPDFEmbeddedFileDocumentHelper(result.qpdf()).getEmbeddedFiles()) {
        const auto data = file->getEmbeddedFileStream().getStreamData();
        attached.append(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
        attached += ",";
    }
    EXPECT_EQ(attached, "attachment of a,attachment of b,attachment of c,");
}

TEST(Merge, ThePagesFindTheirTagsAndLabels) {
    const TestFolder folder;
    TinyPDF first(2);
    first.tag("first");
    first.setRoot("/PageLabels", "<< /Nums [0 << /S /r >>] >>");
    TinyPDF second(1);
    TinyPDF third(2);
    third.tag("third");
    ReadPDF result(
        merged({first.save(folder, "1.pdf"), second.save(folder, "2.pdf"), third.save(folder, "3.pdf")}));
    auto tree = result.root().getKey("/StructTreeRoot");
    ASSERT_TRUE(tree.isDictionary());
    QPDFNumberTreeObjectHelper parents(tree.getKey("/ParentTree"), result.qpdf());
    std::string texts;
    for (auto page : result.pages()) {
        QPDFObjectHandle found;
        auto key = page.getKey("/StructParents");
        if (key.isInteger() && parents.findObject(key.getIntValue(), found)) {
            auto element = found.getArrayItem(0);
            texts += element.getKey("/ActualText").getUTF8Value() + ",";
            EXPECT_EQ(element.getKey("/Pg").getObjGen(), page.getObjGen());
        }
    }
    EXPECT_EQ(texts, "first 1,first 2,third 1,third 2,");
    EXPECT_EQ(result.labels(), "r1,r2,D1,D1,D2");
}

TEST(Merge, LayersAreShownAsTheyWere) {
    const TestFolder folder;
    std::vector<std::filesystem::path> files;
    for (const std::string base : {"", "/BaseState /OFF", "/BaseState /ON"}) {
        TinyPDF pdf(1);
        auto on = pdf.object("<< /Type /OCG /Name (shown) >>");
        auto off = pdf.object("<< /Type /OCG /Name (hidden) >>");
        pdf.setRoot("/OCProperties",
                    fmt::format("<< /OCGs [{0} {1}] /D << {2} /ON [{0}] /OFF [{1}] /Order [{0} {1}] >> >>",
                                TinyPDF::ref(on), TinyPDF::ref(off), base));
        files.push_back(pdf.save(folder, fmt::format("{}.pdf", files.size())));
    }
    for (const bool isTurned : {false, true}) {
        if (isTurned) std::ranges::reverse(files);
        ReadPDF result(merged(files));
        auto layers = result.root().getKey("/OCProperties");
        const auto names = [](QPDFObjectHandle list) {
            std::string all;
            for (auto& layer : list.getArrayAsVector()) all += layer.getKey("/Name").getUTF8Value() + " ";
            return all;
        };
        EXPECT_EQ(layers.getKey("/OCGs").getArrayNItems(), 6);
        EXPECT_EQ(names(layers.getKey("/D").getKey("/ON")), "shown shown shown ");
        EXPECT_EQ(names(layers.getKey("/D").getKey("/OFF")), "hidden hidden hidden ");
        EXPECT_EQ(layers.getKey("/D").getKey("/Order").getArrayNItems(), 6);
    }
}

TEST(Merge, LockedInputsMakeALockedOutput) {
    const TestFolder folder;
    const auto locked = TinyPDF(1).saveLocked(folder, "locked.pdf", "open sesame", "owner");
    const auto plain = TinyPDF(2).save(folder, "plain.pdf");
    PDFJobSettings settings;
    EXPECT_EQ(outcome([&] { merged({plain, locked}, settings); }), "locked");
    settings.password = "open sesame";
    const auto file = merged({plain, locked}, settings);
    EXPECT_THROW(ReadPDF{file}, QPDFExc);
    EXPECT_EQ(ReadPDF(file, "open sesame").order(), "1,2,1");
}

TEST(Merge, TellsWhichInputIsDamaged) {
    const TestFolder folder;
    const auto plain = TinyPDF(1).save(folder, "plain.pdf");
    const auto damaged = folder.write("damaged.pdf", "%PDF-1.4 nothing more");
    try {
        merged({plain, damaged});
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), "unreadable");
        EXPECT_THAT(failure.sentence(), HasSubstr("damaged.pdf"));
        EXPECT_THAT(failure.sentence(), HasSubstr("Couldn't open this file."));
    }
}

TEST(Merge, TakesPhotosAndKeepsTheShapesOfPages) {
    const TestFolder folder;
    TinyPDF pdf(1);
    pdf.page(1).replaceKey("/CropBox", QPDFObjectHandle::parse("[10 10 100 100]"));
    pdf.page(1).replaceKey("/Rotate", QPDFObjectHandle::newInteger(270));
    // A gray picture of 1 by 1 pixel.
    const std::string png(
        "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\0\0\0\0\x3a\x7e\x9b\x55\0\0\0\nIDAT"
        "\x78\x9c\x63\x60\0\0\0\2\0\1\x48\xaf\xa4\x71\0\0\0\0IEND\xae\x42\x60\x82",
        67);
    const auto photo = folder.write("photo.png", png);
    ReadPDF result(combined(PDFTool::merge, {input(pdf.save(folder, "a.pdf")), input(photo, "public.png")}));
    ASSERT_EQ(result.pages().size(), 2U);
    EXPECT_EQ(result.pages()[0].getKey("/CropBox").unparse(), "[ 10 10 100 100 ]");
    EXPECT_EQ(result.pages()[0].getKey("/Rotate").getIntValue(), 270);
    EXPECT_EQ(result.bookmarks(), "a>1 photo>?");
}

TEST(Merge, StopsWhenItIsTold) {
    const TestFolder folder;
    std::stop_source stop;
    const std::vector<InputFile> files{input(TinyPDF(3).save(folder, "a.pdf")),
                                       input(TinyPDF(3).save(folder, "b.pdf"))};
    const WorkContext context{.progress = [&](double) { stop.request_stop(); }, .stop = stop.get_token()};
    EXPECT_THROW(combined(PDFTool::merge, files, {}, context), Cancelled);
}

}  // namespace
}  // namespace tamble::pdf
