#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/PDFNames.h>
#include <TambleCore/PDF/PageList.h>

namespace tamble {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string codeOf(const std::function<void()>& work) {
    try {
        work();
        return "";
    } catch (const PDFError& error) {
        return error.code();
    }
}

TEST(PageList, GroupsAsPeopleTypeThem) {
    EXPECT_THAT(pageGroups("1-3, 5, 8-10", 10),
                ElementsAre(ElementsAre(0, 1, 2), ElementsAre(4), ElementsAre(7, 8, 9)));
    EXPECT_THAT(pageGroups("\t7 - 7 ,2,\u00A04", 7),
                ElementsAre(ElementsAre(6), ElementsAre(1), ElementsAre(3)));
}

TEST(PageList, RefusesWhatIsNoPageOfTheDocument) {
    for (const char* text :
         {"",           " ",           ",",     "1,",  ",1",   "1,,2",       "0",
          "11",         "1-11",        "3-1",   "1-",  "-1",   "-",          "1-2-3",
          "1,1",        "1-3,3",       "2,1-3", "one", "1.5",  "+1",         "0x1",
          "1;2",        "1 2",         "٣",     "1–3", "1:90", "2147483648", "99999999999999999999",
          "4294967297", "1-4294967297"}) {
        EXPECT_EQ(codeOf([&] { pageGroups(text, 10); }), "invalidPageRange") << text;
        EXPECT_EQ(codeOf([&] { splitGroups(split_mode::Ranges{text}, 10); }), "invalidPageRange") << text;
    }
    EXPECT_EQ(codeOf([] { pageGroups("1", 0); }), "invalidPageRange");
    EXPECT_EQ(codeOf([] { pageGroups(std::string("1\0", 2), 3); }), "invalidPageRange");
}

TEST(PageList, TurnsBelongToAGroup) {
    EXPECT_THAT(pageOrder("3,1,2:90", 3), ElementsAre(PageEdit{2, 0}, PageEdit{0, 0}, PageEdit{1, 90}));
    EXPECT_THAT(pageOrder("2-3 : 270", 3), ElementsAre(PageEdit{1, 270}, PageEdit{2, 270}));
    for (const char* text : {"1:45", "1:", "1:-90", ":90", "1:90:90", "1:90-2", "1:x"})
        EXPECT_EQ(codeOf([&] { pageOrder(text, 3); }), "invalidPageRange") << text;
}

TEST(PageList, WhatIsLeftWithoutSome) {
    EXPECT_THAT(pagesWithout("2,4-5", 5), ElementsAre(PageEdit{0, 0}, PageEdit{2, 0}));
    EXPECT_EQ(codeOf([] { pagesWithout("1-5", 5); }), "noPages");
    EXPECT_EQ(codeOf([] { pagesWithout("1-6", 5); }), "invalidPageRange");
}

TEST(PageList, EditsMustFit) {
    EXPECT_EQ(codeOf([] { requireFitting({}, 3); }), "noPages");
    const auto codeFor = [](PageEdit edit) {
        return codeOf([&] { requireFitting(std::span(&edit, 1), 3); });
    };
    EXPECT_EQ(codeFor({0, -90}), "");
    EXPECT_EQ(codeFor({2, 720}), "");
    for (const PageEdit edit : {PageEdit{-1, 0}, PageEdit{3, 0}, PageEdit{0, 1}, PageEdit{0, -45}})
        EXPECT_EQ(codeFor(edit), "invalidPageRange") << edit.source << ":" << edit.rotation;
}

TEST(PageList, CutsIntoEvenGroups) {
    EXPECT_THAT(splitGroups(split_mode::Every{2}, 5),
                ElementsAre(ElementsAre(0, 1), ElementsAre(2, 3), ElementsAre(4)));
    EXPECT_THAT(splitGroups(split_mode::Every{std::numeric_limits<int>::max()}, 2),
                ElementsAre(ElementsAre(0, 1)));
    for (const int size : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_EQ(codeOf([&] { splitGroups(split_mode::Every{size}, 5); }), "invalidPageRange") << size;
}

TEST(PDFSettings, ThePasswordIsNeverWritten) {
    PDFJobSettings settings;
    settings.password = "swordfish";
    settings.split = split_mode::Ranges{"1-2"};
    settings.pages = {{.source = 1, .rotation = 90}};
    const std::string written = writeJson(encodeJson(settings));
    EXPECT_THAT(written, testing::Not(testing::HasSubstr("swordfish")));
    EXPECT_THAT(written, testing::Not(testing::HasSubstr("password")));
    Json stored = parseJson(written);
    stored["password"] = "swordfish";
    const auto read = decodeJson<PDFJobSettings>(stored);
    EXPECT_EQ(read.password, "");
    settings.password.clear();
    EXPECT_EQ(read, settings);
    EXPECT_EQ(encodeJson(PDFSplitMode(split_mode::EveryPage{})), parseJson(R"({"everyPage":{}})"));
    EXPECT_EQ(encodeJson(PDFSplitMode(split_mode::Every{3})), parseJson(R"({"every":{"_0":3}})"));
    EXPECT_EQ(encodeJson(settings).at("split"), parseJson(R"({"ranges":{"_0":"1-2"}})"));
    for (const char* absent : {"outputStem", "pageList"}) EXPECT_FALSE(stored.contains(absent)) << absent;
}

TEST(PDFNames, OfCombinedOutputs) {
    const std::vector<InputFile> three{{.url = "/a/report.pdf"}, {.url = "/a/b.pdf"}, {.url = "/a/c.pdf"}};
    const std::span one(three.data(), 1);
    const PDFJobSettings plain;
    EXPECT_EQ(combinedName(PDFTool::merge, plain, three), "report combined.pdf");
    EXPECT_EQ(combinedName(PDFTool::fromImages, plain, three), "report photos.pdf");
    EXPECT_EQ(combinedName(PDFTool::merge, plain, one), "report.pdf");
    EXPECT_EQ(combinedName(PDFTool::merge, plain, {}), "Combined.pdf");
    PDFJobSettings named;
    named.outputStem = " \tMy/book \n";
    const std::string safe = combinedName(PDFTool::merge, named, three);
    EXPECT_EQ(safe.find('/'), std::string::npos);
    EXPECT_TRUE(safe.ends_with("book.pdf")) << safe;
    named.outputStem = " ";
    EXPECT_EQ(combinedName(PDFTool::merge, named, three), "report combined.pdf");
    named.outputStem = std::string(300, 'x');
    EXPECT_LE(combinedName(PDFTool::merge, named, three).size(), 255U);
}

TEST(PDFNames, PiecesSortInTheOrderOfTheirPages) {
    std::vector<std::string> names;
    for (std::size_t piece = 0; piece < 120; ++piece) {
        const std::vector<int> pages{static_cast<int>(piece)};
        names.push_back(pieceName("report", piece, 120, pages));
        EXPECT_LE(pieceName(std::string(255, 'n'), piece, 120, pages).size(), 255U);
    }
    EXPECT_TRUE(std::ranges::is_sorted(names));
    const std::vector<int> span{6, 7, 8};
    EXPECT_EQ(pieceName("report", 2, 100, span), "report 003, pages 7-9.pdf");
}

}  // namespace
}  // namespace tamble
