#include <Tamble/Model/DropSummary.h>
#include <Tamble/Model/FittingTools.h>

#include <TambleCore/Catalog/Suggestions.h>
#include <TambleCore/Intake/FolderScanner.h>

#include <TambleCoreTests/TestFolder.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

std::vector<InputFile> files(std::initializer_list<std::pair<const char*, int>> kinds) {
    std::vector<InputFile> files;
    for (const auto& [name, count] : kinds) {
        for (int i = 0; i < count; ++i) files.push_back({.url = name, .contentType = ContentType::of(name)});
    }
    return files;
}

std::vector<std::pair<std::string, int>> fits(std::initializer_list<std::pair<const char*, int>> kinds) {
    std::vector<std::pair<std::string, int>> fits;
    for (const auto& [tool, count] : fittingTools(files(kinds))) fits.emplace_back(tool->id, count);
    return fits;
}

TEST(FittingTools, OfAMixedDropAreTheBestOfEachKindFirst) {
    const auto mixed = fits({{"a.pdf", 3}, {"a.jpg", 100}, {"a.heic", 28}, {"a.xyz", 7}});
    ASSERT_GE(mixed.size(), 4U);
    EXPECT_THAT((std::vector(mixed.begin(), mixed.begin() + 4)),
                ElementsAre(Pair("image.convert", 128), Pair("image.compress", 128),
                            Pair("image.removeMetadata", 128), Pair("pdf.merge", 131)));
    EXPECT_THAT(mixed, Contains(Pair("pdf.sign", 3)));
    EXPECT_THAT(mixed, Contains(Pair("image.removeBackground", 128)));
    EXPECT_THAT(mixed, Contains(Pair("files.rename", 138)));
    std::vector<std::string> ids;
    for (const auto& fit : mixed) ids.push_back(fit.first);
    std::ranges::sort(ids);
    EXPECT_EQ(std::ranges::adjacent_find(ids), ids.end()) << "each once";
}

TEST(FittingTools, AreThoseThatCanDoSomething) {
    EXPECT_THAT(fits({}), IsEmpty());
    EXPECT_THAT(fits({{"a.xyz", 2}, {"a.mp4", 1}}), ElementsAre(Pair("files.rename", 3)));
    const auto onePDF = fits({{"a.pdf", 1}});
    ASSERT_FALSE(onePDF.empty());
    EXPECT_EQ(onePDF.front().first, "pdf.compress") << "there is nothing to combine it with";
    EXPECT_EQ(fits({{"a.pdf", 2}}).front().first, "pdf.merge");
    EXPECT_THAT(onePDF, testing::Not(Contains(Pair("pdf.fromImages", testing::_))));
}

TEST(DropSummary, CountsWhatWasDropped) {
    const TestFolder folder;
    folder.write("Goa/a.jpg", "1234");
    folder.write("Goa/day 1/b.png", "12");
    folder.write("Goa/day 1/deep/c.pdf", "1");
    folder.write("Goa/notes.xyz", "1");
    const auto loose = folder.write("not\xFFtext.jpg", "123");
    const std::vector dropped{loose, folder.files() / "Goa"};
    ScanOptions options(true);
    for (const bool takesAll : {false, true}) {
        if (takesAll)
            options.accepts = [](const auto&) { return true; };
        else
            options.accepts = [](const auto& type) { return KindCounts::of({{type, 1}}).total() == 1; };
        const ScanResult scan = FolderScanner{options}.scan(dropped);
        const DropSummary summary = DropSummary::of(scan);
        EXPECT_EQ(summary.counts, (KindCounts{.images = 3, .pdfs = 1}));
        EXPECT_EQ(std::tuple(summary.others, summary.folders, summary.looseFiles), std::tuple(1, 1, 1));
        EXPECT_EQ(summary.bytes, scan.totalBytes);
        EXPECT_EQ(summary.firstFolderName, "Goa");
        EXPECT_EQ(summary.files(), 5);
    }
    EXPECT_EQ(DropSummary::of({}), DropSummary());
}

}  // namespace
}  // namespace tamble
