#include <TambleCore/Rename/RenamePlanner.h>

#include <TambleCoreTests/Jobs/TestProcessors.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using std::filesystem::path;
using testing::ElementsAre;

class RenamePlan : public testing::Test {
  protected:
    void add(const std::string& name) { files.push_back(looseFile(folder.write(name, name))); }

    /// "new name" or "new name (problem)".
    std::vector<std::string> plan(const RenamePattern& pattern, RenameWay way = RenameWay::inPlace) const {
        const auto before = snapshot(folder.files());
        std::vector<std::string> names;
        for (const RenameItem& item :
             RenamePlanner::plan(files, pattern, way, RenamePlanner::namesOnDisk(files, way))) {
            const std::string problem =
                item.problem ? fmt::format(" ({})", caseName(*item.problem)) : std::string();
            names.push_back(item.newName + problem);
        }
        EXPECT_EQ(snapshot(folder.files()), before);
        return names;
    }

    TestFolder folder;
    std::vector<InputFile> files;
};

TEST_F(RenamePlan, MarksNamesThatSeveralWouldGet) {
    add("a.JPG");
    add("b.jpg");
    add("c.png");
    add("other/d.jpg");
    EXPECT_THAT(plan({.base = rename_base::Text{"Photo"}}),
                ElementsAre("Photo.JPG (duplicate)", "Photo.jpg (duplicate)", "Photo.png", "Photo.jpg"));
    EXPECT_THAT(
        plan({.base = rename_base::Text{"P"}, .numbering = RenamePattern::Numbering::after, .digits = 1}),
        ElementsAre("P 1.JPG", "P 2.jpg", "P 3.png", "P 4.jpg"));
}

TEST_F(RenamePlan, MarksSpellingsOfOneNameAndWhatNoDiskTakes) {
    add("caf\u00E9.x");
    add("cafe\u0301.X");
    add("a");
    EXPECT_THAT(plan({}), ElementsAre("caf\u00E9.x (duplicate)", "cafe\u0301.X (duplicate)", "a"));
    files.erase(files.begin(), files.begin() + 2);
    EXPECT_THAT(plan({.base = rename_base::Text{"  "}}), ElementsAre(" (empty)"));
    const std::string most(255, 'x');
    EXPECT_THAT(plan({.base = rename_base::Text{most}}), ElementsAre(most));
    EXPECT_THAT(plan({.base = rename_base::Text{most + "x"}}), ElementsAre(most + "x (tooLong)"));
}

TEST_F(RenamePlan, KnowsWhichNamesBecomeFree) {
    add("a.txt");
    add("b.txt");
    folder.write("C.txt", "in the way");
    const RenamePattern next{.find = "a", .replaceWith = "b"};
    EXPECT_THAT(plan(next), ElementsAre("b.txt (duplicate)", "b.txt (duplicate)")) << "b.txt stays";
    EXPECT_THAT(plan({.find = "b", .replaceWith = "c"}), ElementsAre("a.txt", "c.txt (exists)"));
    EXPECT_THAT(plan({.letterCase = RenamePattern::LetterCase::upper}), ElementsAre("A.txt", "B.txt"));
    EXPECT_THAT(plan({}), ElementsAre("a.txt", "b.txt"));
    folder.write("A.TXT", "another file");
    EXPECT_THAT(plan({.letterCase = RenamePattern::LetterCase::upper, .newExtension = "TXT"}),
                ElementsAre("A.TXT (exists)", "B.TXT"));
    EXPECT_THAT(plan({}, RenameWay::copies), ElementsAre("a.txt (exists)", "b.txt (exists)"));
}

TEST_F(RenamePlan, AsksOnlyForPlacesWhereNoFileOfTheBatchStands) {
    files = {{.url = "/in/1.txt"}, {.url = "/in/2.txt"}};
    const RenamePattern pattern{.base = rename_base::Text{""},
                                .numbering = RenamePattern::Numbering::after,
                                .startNumber = 2,
                                .digits = 1};
    std::vector<path> asked;
    const auto items = RenamePlanner::plan(files, pattern, RenameWay::inPlace, [&](const path& place) {
        asked.push_back(place);
        return true;
    });
    EXPECT_EQ(items[0].problem, std::nullopt) << "2.txt moves away";
    EXPECT_EQ(items[1].problem, RenameItem::Problem::exists);
    EXPECT_THAT(asked, ElementsAre("/in/3.txt"));
}

}  // namespace
}  // namespace tamble
