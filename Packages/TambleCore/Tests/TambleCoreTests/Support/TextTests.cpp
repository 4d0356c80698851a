#include <TambleCore/Support/Text.h>
#include <TambleCore/Support/UUID.h>

#include <set>

namespace tamble {
namespace {

TEST(Text, composesAndLowersUnicodeAndLeavesOtherBytesAlone) {
    EXPECT_EQ(precomposed("cafe\xCC\x81"), "café");
    EXPECT_EQ(precomposed("\xE2\x84\xAB"), "\xC3\x85");  // the angstrom sign is the letter
    EXPECT_EQ(lowercased("ÀÉ ΣΑΣ İ"), "àé σας i\xCC\x87");
    const std::string broken = "Abc\xFF e\xCC\x81";
    EXPECT_EQ(precomposed(broken), broken);
    EXPECT_EQ(lowercased(broken), "abc\xFF e\xCC\x81");
    EXPECT_EQ(printable(broken), "Abc\uFFFD e\xCC\x81");
    EXPECT_EQ(printable("\xE2\x82"), "\uFFFD");
}

TEST(Text, mapsLetterCaseByUnicodesRules) {
    EXPECT_EQ(uppercased("straße ǆ ﬁ ß i"), "STRASSE Ǆ FI SS I");
    EXPECT_EQ(uppercased("a\xFF ä"), "A\xFF ä");
    EXPECT_EQ(titlecased("goa TRIP, don't ΟΔΟΣ ǆ ǉiljana"), "Goa Trip, Don't Οδος ǅ ǈiljana");
    EXPECT_EQ(titlecased("IMG_0042_final.cut-two 3d élan e\u0301lan"),
              "Img_0042_Final.Cut-Two 3d Élan E\u0301lan");
    EXPECT_EQ(titlecased("o'brien \xFF BIG_top"), "O'brien \xFF Big_Top");
}

TEST(Text, trimsEveryUnicodeSpaceAtBothEnds) {
    EXPECT_EQ(trimmed(" \t\r\n\u00A0\u3000a b\u2028\u0085 "), "a b");
    EXPECT_EQ(trimmed("\u2003\n"), "");
    EXPECT_EQ(trimmed("\xFF \xFF"), "\xFF \xFF");
}

TEST(Text, suggestsOnlyWordsThatAreNear) {
    EXPECT_EQ(editDistance("quality", "qualtiy"), 1U);
    EXPECT_EQ(editDistance("", "abc"), 3U);
    EXPECT_EQ(editDistance("kitten", "sitting"), 3U);
    const std::vector<std::string> words = {"smaller", "balanced", "best"};
    EXPECT_EQ(nearestWord("smalller", words), "smaller");
    EXPECT_EQ(nearestWord("ballanced", words), "balanced");
    EXPECT_EQ(nearestWord("purple", words), "");
    EXPECT_EQ(kebabCase("removeAllMetadata"), "remove-all-metadata");
}

TEST(UUID, hasTheFormOfVersion4AndNeverRepeats) {
    std::set<std::string> seen;
    for (int i = 0; i < 100; ++i) {
        const auto id = newUUID();
        EXPECT_THAT(id, ::testing::MatchesRegex(
                            "[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}"));
        EXPECT_TRUE(isUUID(id));
        EXPECT_TRUE(seen.insert(id).second);
    }
    EXPECT_TRUE(isUUID("0f8fad5b-d9cb-469f-a165-70867728950e"));
    for (const auto* wrong :
         {"", "0f8fad5b-d9cb-469f-a165-70867728950", "0f8fad5bxd9cb-469f-a165-70867728950e",
          "0f8fad5b-d9cb-469f-a165-70867728950g", "0f8fad5b-d9cb-469f-a165-70867728950e "}) {
        EXPECT_FALSE(isUUID(wrong)) << wrong;
    }
}

}  // namespace
}  // namespace tamble
