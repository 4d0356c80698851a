#include <TambleCore/Rename/FindAndReplace.h>
#include <TambleCore/Rename/NewName.h>
#include <TambleCore/Support/Json/JsonCoding.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using Numbering = RenamePattern::Numbering;
using LetterCase = RenamePattern::LetterCase;

std::string named(const std::string& name, const RenamePattern& pattern, std::size_t index = 0) {
    return NewName::of(name, index, pattern).whole();
}

TEST(RenamePattern, HasTheStoredJsonForm) {
    const RenamePattern kept{.newExtension = ".JPG"};
    const std::string json =
        R"({"base":{"keep":{}},"find":"","replaceWith":"","matchCase":false,"prefix":"","suffix":"",)"
        R"("numbering":"none","startNumber":1,"digits":3,"separator":" ","letterCase":"unchanged",)"
        R"("newExtension":".JPG"})";
    EXPECT_EQ(writeJson(encodeJson(kept)), json);
    EXPECT_EQ(decodeJson<RenamePattern>(parseJson(json)), kept);
    const RenamePattern typed{.base = rename_base::Text{"Goa"}, .numbering = Numbering::before};
    EXPECT_EQ(decodeJson<RenamePattern>(encodeJson(typed)), typed);
    EXPECT_EQ(writeJson(encodeJson(typed.base)), R"({"text":{"_0":"Goa"}})");
    EXPECT_FALSE(encodeJson(typed).contains("newExtension"));
    EXPECT_THROW(decodeJson<RenamePattern::Base>(parseJson(R"({"keep":{},"text":{"_0":""}})")), DecodeError);
}

TEST(NewNames, TakeTheStepsInTheirOrder) {
    const RenamePattern pattern{.base = rename_base::Text{"goa TRIP"},
                                .find = "o",
                                .replaceWith = "u",
                                .prefix = "my ",
                                .suffix = " x",
                                .numbering = Numbering::after,
                                .startNumber = 9,
                                .letterCase = LetterCase::title};
    EXPECT_EQ(named("a.JPG", pattern), "my Gua Trip x 009.JPG");
    EXPECT_EQ(named("a.JPG", pattern, 1), "my Gua Trip x 010.JPG");
    EXPECT_EQ(named("a", {.prefix = " ", .numbering = Numbering::before, .digits = 1, .separator = "_"}, 2),
              "3_ a");
    EXPECT_EQ(named("a.b.c", {.letterCase = LetterCase::upper}), "A.B.c");
    EXPECT_EQ(named(".hidden", {.suffix = "!"}), ".hidden!") << "no extension";
    EXPECT_EQ(named("a.txt", {.base = rename_base::Text{" \u2003"}, .suffix = "\t"}), ".txt");
}

TEST(NewNames, CountWithoutABound) {
    const auto number = [](std::int64_t start, std::size_t index, int digits) {
        return named(
            "", {.numbering = Numbering::before, .startNumber = start, .digits = digits, .separator = ""},
            index);
    };
    EXPECT_EQ(number(999, 1, 3), "1000");
    EXPECT_EQ(number(-2, 1, 3), "-001");
    EXPECT_EQ(number(-2, 2, 3) + number(-2, 3, 0), "0001");
    EXPECT_EQ(number(std::numeric_limits<std::int64_t>::max(), 1, 1), "9223372036854775808");
    EXPECT_EQ(number(std::numeric_limits<std::int64_t>::min(), 0, 1), "-9223372036854775808");
    EXPECT_EQ(number(1, 0, std::numeric_limits<int>::max()).size(), 256U);
    EXPECT_EQ(number(1, 0, -5), "1");
}

TEST(NewNames, TakeExtensionsAsPeopleTypeThem) {
    for (const char* typed : {"png", ".png", " .png ", "..png. ."}) {
        EXPECT_EQ(named("a.jpg", {.newExtension = typed}), "a.png") << typed;
    }
    EXPECT_EQ(named("a.jpg", {.newExtension = ". "}), "a");
    EXPECT_EQ(named("a", {.newExtension = "tar.gz"}), "a.tar.gz");
}

TEST(NewNames, NeverLeaveTheirFolder) {
    EXPECT_EQ(named("a.jpg", {.base = rename_base::Text{"../AC/DC"}, .newExtension = "j/g"}), "..-AC-DC.j-g");
    EXPECT_EQ(named("a", {.find = "a", .replaceWith = std::string("/\0", 2)}), "--");
    for (const char* nothing : {"", ".", "..", " . "}) {
        EXPECT_TRUE(NewName::of("a", 0, {.base = rename_base::Text{nothing}}).isEmpty()) << nothing;
    }
    EXPECT_FALSE(NewName::of("a.jpg", 0, {.base = rename_base::Text{".."}}).isEmpty());
}

TEST(NewNames, KeepBytesThatAreNoText) {
    EXPECT_EQ(named("caf\xE9 A.jpg", {.find = "a", .replaceWith = "o", .numbering = Numbering::after}),
              "cof\xE9 o 001.jpg");
    EXPECT_EQ(named("\xFF ü.\xFE", {.letterCase = LetterCase::title}), "\xFF ü.\xFE");
}

std::string ignoringCase(std::string_view text, std::string_view find, std::string_view with = "_") {
    return withReplaced(text, find, with, LetterMatching::ignoringCase);
}
std::string exactly(std::string_view text, std::string_view find) {
    return withReplaced(text, find, "_", LetterMatching::exact);
}

TEST(FindAndReplace, FindsTheSameTextInEverySpelling) {
    EXPECT_EQ(ignoringCase("IMG img iMg", "img"), "_ _ _");
    EXPECT_EQ(exactly("IMG img", "img"), "IMG _");
    EXPECT_EQ(ignoringCase("aaa", "aa"), "_a");
    EXPECT_EQ(ignoringCase("a", ""), "a");
    EXPECT_EQ(ignoringCase("Straße STRASSE straẞe", "strasse"), "_ _ _");
    EXPECT_EQ(ignoringCase("ΟΔΟΣ", "οδος"), "_");
    EXPECT_EQ(ignoringCase("\u212Aelvin", "k"), "_elvin");
    for (const char* text : {"Caf\u00E9 1", "Cafe\u0301 1"}) {
        for (const char* find : {"f\u00E9", "fe\u0301"}) EXPECT_EQ(exactly(text, find), "Ca_ 1");
        EXPECT_EQ(ignoringCase(text, "CAF\u00C9"), "_ 1");
    }
    EXPECT_EQ(exactly("\uD55C\uAE00", "\u1112\u1161\u11AB"), "_\uAE00") << "Hangul, composed and not";
}

TEST(FindAndReplace, CutsNoCharacterApart) {
    EXPECT_EQ(ignoringCase("cafe\u0301 e", "e"), "cafe\u0301 _");
    EXPECT_EQ(ignoringCase("Straße", "s"), "_traße");
    EXPECT_EQ(ignoringCase("İi", "i"), "İ_");
    EXPECT_EQ(ignoringCase("İi", "i\u0307"), "_i");
    EXPECT_EQ(ignoringCase("👩\u200D👧 👩", "👩"), "👩\u200D👧 _");
    EXPECT_EQ(ignoringCase("🇩🇪🇮🇳", "🇪🇮"), "🇩🇪🇮🇳");
    EXPECT_EQ(ignoringCase("é", "\u0301"), "é");
    EXPECT_EQ(ignoringCase("日本語.日本", "日本", "Japan"), "Japan語.Japan");
}

TEST(FindAndReplace, ComparesBytesWhereTheTextIsNone) {
    EXPECT_EQ(ignoringCase("\xFFIMG\xC3", "img"), "\xFF_\xC3");
    EXPECT_EQ(ignoringCase("é", "\xC3"), "é") << "half a character";
    EXPECT_EQ(exactly("\xFF\xFE", "\xFE"), "\xFF_");
}

}  // namespace
}  // namespace tamble
