#include <Tamble/CommandLine/Progress/ProgressLine.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/CommandLine/Text/Layout.h>
#include <Tamble/CommandLine/Text/SafeText.h>

#include <gtest/gtest.h>

namespace tamble {
namespace {

TEST(SafeText, ControlCharactersAreWrittenOut) {
    EXPECT_EQ(safeText("a\nb\t\x1b[31m"), "a\\nb\\t\\u{1B}[31m");
    // The one-byte form of "escape [" in UTF-8, and an override of the text direction.
    EXPECT_EQ(safeText("\xC2\x9B"
                       "31m"),
              "\\u{9B}31m");
    EXPECT_EQ(safeText("exe.\xE2\x80\xAEgpj"), "exe.\\u{202E}gpj");
    EXPECT_EQ(safeText("line\xE2\x80\xA8sep"), "line\\u{2028}sep");
    EXPECT_EQ(safeText("Süß 写真 \xFF"), "Süß 写真 \xEF\xBF\xBD");
}

TEST(DisplayWidth, CountsCells) {
    EXPECT_EQ(displayWidth("abc…"), 4U);
    EXPECT_EQ(displayWidth("写真"), 4U);
    EXPECT_EQ(displayWidth("e\xCC\x81"), 1U);
    EXPECT_EQ(displayWidth("📷"), 2U);
}

TEST(Shortened, KeepsBothEndsAndTheWidth) {
    EXPECT_EQ(shortened("beach.jpg", 9), "beach.jpg");
    EXPECT_EQ(shortened("beach at noon.jpg", 9), "beac….jpg");
    for (std::size_t width = 0; width < 20; ++width) {
        EXPECT_LE(displayWidth(shortened("写真の長い名前 12.jpeg", width)), width);
    }
}

TEST(SizeText, UsesUnitsOfAThousand) {
    EXPECT_EQ(sizeText(0), "0 bytes");
    EXPECT_EQ(sizeText(1), "1 byte");
    EXPECT_EQ(sizeText(999), "999 bytes");
    EXPECT_EQ(sizeText(1000), "1.0 kB");
    EXPECT_EQ(sizeText(999'949), "999.9 kB");
    EXPECT_EQ(sizeText(999'950), "1.0 MB");
    EXPECT_EQ(sizeText(4'200'000), "4.2 MB");
}

TEST(Amounts, ReadAsPeopleSayThem) {
    EXPECT_EQ(countText(1, "file", "files"), "1 file");
    EXPECT_EQ(countText(1'234'567, "file", "files"), "1,234,567 files");
    EXPECT_EQ(durationText(59.2), "1 min 0 s");
    EXPECT_EQ(durationText(11'400), "3 h 10 min");
    EXPECT_EQ(changeText(1000, 190), "81% smaller");
    EXPECT_EQ(changeText(1'000'000, 1), "99% smaller");
    EXPECT_EQ(changeText(1000, 1030), "3% larger");
    EXPECT_EQ(changeText(1000, 999), "less than 1% smaller");
}

TEST(Layout, WrapsBetweenWordsAndKeepsLineBreaks) {
    EXPECT_EQ(wrappedLines("one two three", 8), (std::vector<std::string>{"one two", "three"}));
    EXPECT_EQ(wrappedLines("one\ntwo", 80), (std::vector<std::string>{"one", "two"}));
    EXPECT_EQ(wrappedLines("a verylongword b", 4), (std::vector<std::string>{"a", "verylongword", "b"}));
}

ProgressState halfway(const std::string& name) {
    return {
        .progress = {.completed = 12, .total = 340, .partial = 0.5}, .currentName = name, .secondsLeft = 125};
}

std::string joined(const ProgressLine& line) {
    return line.filled + line.unfilled + line.text;
}

TEST(ProgressLine, ShowsCountNameAndTime) {
    const std::string line = joined(progressLine(halfway("beach.jpg"), 79));
    EXPECT_TRUE(line.ends_with("12 of 340  beach.jpg  2 min 5 s left")) << line;
    EXPECT_TRUE(line.starts_with("─")) << line;
}

TEST(ProgressLine, NeverExceedsTheWidth) {
    for (const std::string name :
         {"", "beach.jpg", "とても長い名前の写真とても長い名前の写真とても長い名前の写真.heic",
          "🏖️🏖️🏖️🏖️🏖️🏖️🏖️🏖️"}) {
        for (std::size_t width = 1; width <= 120; ++width) {
            EXPECT_LE(displayWidth(joined(progressLine(halfway(name), width))), width)
                << name << ' ' << width;
        }
    }
}

TEST(ProgressLine, AJobWithoutFilesOrWithTooMuchDoneIsShown) {
    EXPECT_TRUE(joined(progressLine({}, 40)).ends_with("0 of 0"));
    const ProgressState over{.progress = {.completed = 4, .total = 4, .partial = 1}};
    EXPECT_TRUE(progressLine(over, 40).unfilled.empty());
}

}  // namespace
}  // namespace tamble
