#include <TambleCore/Support/SearchWords.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using testing::ElementsAre;

TEST(SearchWords, areTheSameHoweverTheyAreWritten) {
    for (const char* text :
         {"Größe, ändern", "GRO\u0308SSE a\u0308ndern", "große\tANDERN…", "(grosse)andern"}) {
        EXPECT_THAT(searchWords(text), ElementsAre(U"grosse", U"andern")) << text;
    }
    EXPECT_THAT(searchWords("don't “Don’t” ØRSTED łódź æther"),
                ElementsAre(U"dont", U"dont", U"orsted", U"lodz", U"aether"));
    EXPECT_THAT(searchWords("image.removeBackground 1080p m² ①"),
                ElementsAre(U"image", U"removebackground", U"1080p", U"m2", U"1"));
    EXPECT_THAT(searchWords("İstanbul ΣΊΣΥΦΟΣ"), ElementsAre(U"istanbul", U"σισυφοσ"));
    EXPECT_THAT(searchWords("ﬁle ＰＤＦ"), ElementsAre(U"file", U"pdf"));
    EXPECT_THAT(searchWords("圧縮"), ElementsAre(U"圧縮"));
    EXPECT_THAT(searchWords("a\xFFz \xC3"), ElementsAre(U"a", U"z"));
    EXPECT_THAT(searchWords(" …\u0301!"), ElementsAre());
}

TEST(SearchWords, tellHowManyMistakesWereTyped) {
    const auto inWord = [](std::u32string_view typed, std::u32string_view word) {
        return typingMistakes(typed, word).inWord;
    };
    EXPECT_EQ(inWord(U"sgin", U"sign"), 1U) << "neighbours that changed places";
    EXPECT_EQ(inWord(U"größe", U"grosse"), 3U) << "letters, not bytes";
    EXPECT_EQ(inWord(U"", U"abc"), 3U);
    EXPECT_EQ(inWord(U"abc", U""), 3U);
    const auto [whole, beginning] = typingMistakes(U"comrpe", U"compress");
    EXPECT_EQ(whole, 3U);
    EXPECT_EQ(beginning, 1U);
}

}  // namespace
}  // namespace tamble
