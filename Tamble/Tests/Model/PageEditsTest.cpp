#include <Tamble/Model/PageEdits.h>

#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

std::vector<int> order(const PageEdits& edits) {
    std::vector<int> sources;
    for (const auto& page : edits.pages()) sources.push_back(page.source);
    return sources;
}

std::vector<int> selected(const PageEdits& edits) {
    std::vector<int> rows;
    for (std::size_t i = 0; i < edits.pages().size(); ++i) {
        if (edits.pages()[i].isSelected) rows.push_back(static_cast<int>(i));
    }
    return rows;
}

TEST(PageEditsTest, SelectionReachesAsFileManagersDo) {
    PageEdits edits(PageUse::order, 6);
    edits.select(2, PageReach::only);
    edits.select(4, PageReach::through);
    EXPECT_THAT(selected(edits), ElementsAre(2, 3, 4));
    edits.select(0, PageReach::through);
    EXPECT_THAT(selected(edits), ElementsAre(0, 1, 2)) << "from the same page on";
    edits.select(5, PageReach::besides);
    edits.select(1, PageReach::besides);
    EXPECT_THAT(selected(edits), ElementsAre(0, 2, 5));
    for (const int nowhere : {-1, 6}) edits.select(nowhere, PageReach::only);
    EXPECT_THAT(selected(edits), ElementsAre(0, 2, 5));
    edits.select(std::vector{3, 9, -4}, false);
    EXPECT_THAT(selected(edits), ElementsAre(3));
    EXPECT_FALSE(edits.canUndo());
    EXPECT_EQ(edits.result(), std::nullopt) << "a selection is no edit";
    PageEdits none(PageUse::order, 0);
    none.select(0, PageReach::through);
    none.moveBy(1);
    none.moveBefore(3);
    EXPECT_FALSE(none.result());
}

TEST(PageEditsTest, SelectedPagesMoveTogether) {
    PageEdits edits(PageUse::order, 6);
    edits.select(std::vector{1, 4}, false);
    edits.moveBefore(4);
    EXPECT_THAT(order(edits), ElementsAre(0, 2, 3, 1, 4, 5)) << "before one of themselves";
    edits.moveBy(1);
    EXPECT_THAT(order(edits), ElementsAre(0, 2, 3, 5, 1, 4));
    edits.moveBy(1);
    edits.moveBefore(77);
    EXPECT_THAT(order(edits), ElementsAre(0, 2, 3, 5, 1, 4)) << "no further than to the end";
    edits.moveBy(-20);
    EXPECT_THAT(order(edits), ElementsAre(1, 4, 0, 2, 3, 5));
    edits.undo();
    edits.undo();
    EXPECT_THAT(order(edits), ElementsAre(0, 2, 3, 1, 4, 5)) << "moves that changed nothing are no steps";
    edits.undo();
    edits.undo();
    EXPECT_FALSE(edits.result());
    edits.selectAll(false);
    edits.moveBefore(0);
    EXPECT_FALSE(edits.canUndo());
}

TEST(PageEditsTest, TurnsAndPagesLeftOutMakeTheDocument) {
    PageEdits edits(PageUse::order, 3);
    edits.select(0, PageReach::only);
    for (int i = 0; i < 3; ++i) edits.turn(-90);
    edits.moveBefore(3);
    edits.select(0, PageReach::only);
    edits.toggleLeftOut();
    EXPECT_THAT(edits.result(), Optional(ElementsAre(PageEdit{2, 0}, PageEdit{0, 90})));
    edits.select(2, PageReach::besides);
    EXPECT_FALSE(edits.areSelectedLeftOut());
    edits.toggleLeftOut();
    EXPECT_TRUE(edits.areSelectedLeftOut());
    edits.toggleLeftOut();
    EXPECT_EQ(edits.leftOutCount(), 0);
    edits.selectAll(true);
    edits.toggleLeftOut();
    EXPECT_THAT(edits.result(), Optional(IsEmpty())) << "which is refused in words of its own";
    edits.reset();
    EXPECT_FALSE(edits.result());
    edits.undo();
    EXPECT_EQ(edits.leftOutCount(), 3);

    PageEdits round(PageUse::order, 1);
    round.selectAll(true);
    for (int i = 0; i < 4; ++i) round.turn(90);
    EXPECT_FALSE(round.result()) << "all the way round is no turn";
}

TEST(PageEditsTest, PickedPagesGoOrAreTakenOut) {
    PageEdits deletion(PageUse::deletion, 4);
    deletion.select(1, PageReach::besides);
    deletion.select(3, PageReach::through);
    EXPECT_THAT(deletion.result(), Optional(ElementsAre(PageEdit{0})));
    deletion.undo();
    EXPECT_THAT(deletion.result(), Optional(ElementsAre(PageEdit{0}, PageEdit{2}, PageEdit{3})));
    deletion.selectAll(true);
    EXPECT_THAT(deletion.result(), Optional(IsEmpty()));
    deletion.selectAll(false);
    EXPECT_FALSE(deletion.result());

    PageEdits selection(PageUse::selection, 5);
    selection.select(4, PageReach::besides);
    selection.select(0, PageReach::besides);
    selection.select(2, PageReach::through);
    EXPECT_THAT(selection.result(), Optional(ElementsAre(PageEdit{0}, PageEdit{1}, PageEdit{2}, PageEdit{4})))
        << "in the document's order, whatever the order of the clicks";
}

TEST(PageEditsTest, FewMovesLeadFromOneOrderToAnother) {
    const auto apply = [](std::vector<int> pages, const std::vector<std::pair<int, int>>& moves) {
        for (const auto& [from, to] : moves) {
            const int page = pages.at(static_cast<std::size_t>(from));
            pages.erase(pages.begin() + from);
            pages.insert(pages.begin() + to, page);
        }
        return pages;
    };
    PageEdits edits(PageUse::order, 300);
    const PageEdits untouched = edits;
    edits.select(0, PageReach::only);
    edits.moveBefore(300);
    EXPECT_THAT(movesBetween(untouched.pages(), edits.pages()), ElementsAre(std::pair(0, 299)));
    EXPECT_THAT(movesBetween(edits.pages(), untouched.pages()), ElementsAre(std::pair(299, 0)));

    std::minstd_rand random(7);
    for (int round = 0; round < 40; ++round) {
        const PageEdits before = edits;
        std::vector<int> rows;
        for (int i = 0; i < 20; ++i) rows.push_back(static_cast<int>(random() % 300));
        edits.select(rows, false);
        edits.moveBefore(static_cast<int>(random() % 301));
        const auto moves = movesBetween(before.pages(), edits.pages());
        EXPECT_EQ(apply(order(before), moves), order(edits));
        EXPECT_LE(moves.size(), 20U);
    }
    EXPECT_THAT(movesBetween(edits.pages(), edits.pages()), IsEmpty());
}

}  // namespace
}  // namespace tamble
