#include <TambleCore/Support/Json/Json.h>

#include <regex>
#include <sstream>

#include "Program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

struct Refusal {
    std::vector<std::string> words;
    std::string sentence;
};

TEST(Usage, WrongWordsEndWithTwoASentenceAndNothingOnStandardOutput) {
    const Home home;
    home.addPicture("a.bmp");
    const std::vector<Refusal> refusals{
        {{"image.convrt", "a.bmp"}, "Did you mean image.convert?"},
        {{"convert", "a.bmp"}, "Did you mean image.convert or video.convert or audio.convert?"},
        {{"tolls"}, "Did you mean tools?"},
        {{"a.bmp"}, "as in: tamble scan a.bmp"},
        {{"--json", "tools"}, "the tool or command is the first word"},
        {{"video.trim", "a.bmp"}, "video.trim can't run: "},
        {{"tools", "now"}, "tools takes no “now”"},
        {{"scan"}, "scan needs files or folders"},
        {{"scan", "missing.bmp"}, "There is no file or folder “missing.bmp”."},
        {{"image.convert", "--to", "wepb", "a.bmp"}, "Did you mean “webp”?"},
        {{"image.convert", "a.bmp", "--dryrun"}, "Did you mean --dry-run?"},
        {{"image.convert", "a.bmp", "--save", "replac"}, "Did you mean “replace”?"},
        {{"image.convert", "-0"}, "no paths on standard input"},
        {{"estimate"}, "estimate needs a tool first"},
        {{"completion", "zhs"}, "Did you mean zsh?"},
        {{"files.rename", "a.bmp", "--copies", "--in-place"}, "exclude each other"},
        {{"files.rename", "a.bmp", "--clash", "skip"}, "--clash is for copies: add --copies."},
        {{"files.rename", "a.bmp", "--copies", "--save", "replace"}, "--save replace is --in-place"},
        {{"files.rename", "a.bmp", "--digits", "21"}, "must be between 1 and 20"},
        {{"undo", "NOSUCHID"}, "There is no job “NOSUCHID”"},
        {{"scan", "no\x1b[31m\nname"}, "no\\u{1B}[31m\\nname"},
    };
    const auto before = home.contents();
    for (const auto& refusal : refusals) {
        const Finished run = home.tamble(refusal.words);
        EXPECT_EQ(run.status, 2) << refusal.words.front();
        EXPECT_EQ(run.output, "");
        EXPECT_THAT(run.errors,
                    AllOf(HasSubstr(refusal.sentence), HasSubstr("--help"), Not(HasSubstr("\x1b"))));
    }
    EXPECT_EQ(home.contents(), before);
}

TEST(Usage, HelpFitsItsWidthAndNamesWhatThereIs) {
    const Home home;
    const Finished overview = home.tamble({});
    EXPECT_EQ(overview.status, 0);
    EXPECT_EQ(overview.output, home.tamble({"--help"}).output);
    EXPECT_EQ(home.tamble({"image.convert", "--help"}).output, home.tamble({"help", "image.convert"}).output);
    for (const std::string topic :
         {"tools", "scan", "estimate", "image.convert", "image.removeMetadata", "files.rename"}) {
        for (const int width : {50, 80, 200}) {
            const Finished run =
                home.shell("COLUMNS=" + std::to_string(width) + " " TAMBLE_PROGRAM " " + topic + " --help");
            EXPECT_EQ(run.status, 0);
            std::istringstream lines(run.output);
            for (std::string line; std::getline(lines, line);) {
                // Options with long lists of words stand on lines of their own, and cannot be broken.
                if (line.starts_with("  -")) continue;
                EXPECT_LE(line.size(), static_cast<std::size_t>(std::min(width, 100)) + 4)
                    << topic << ": " << line;
            }
        }
    }
}

/// With every run of blanks and line breaks as one blank.
std::string unwrapped(const std::string& text) {
    return std::regex_replace(text, std::regex("\\s+"), " ");
}

TEST(Usage, ToolHelpHasTheTextsOfThePanelWithTheirOptions) {
    const Home home;
    const std::string convert = unwrapped(home.tamble({"image.convert", "--help"}).output);
    EXPECT_THAT(convert,
                HasSubstr("--to webp WebP: Best for websites and blogs. Much smaller, same look. (default)"));
    EXPECT_THAT(convert, HasSubstr("--to avif AVIF: Newest web format."));
    const std::string cutOut = unwrapped(home.tamble({"image.removeBackground", "--help"}).output);
    EXPECT_THAT(cutOut, AllOf(HasSubstr("Everything happens on your computer."), Not(HasSubstr("Mac"))));
}

TEST(Usage, ToolsListsTheWholeCatalog) {
    const Home home;
    const Json tools = parseJson(home.tamble({"tools", "--json"}).output);
    ASSERT_EQ(tools.size(), 39U);
    EXPECT_EQ(tools[0]["id"], "image.convert");
    EXPECT_EQ(tools[0]["isAvailable"], true);
    EXPECT_EQ(tools[17]["id"], "video.audio");
    EXPECT_EQ(tools[18]["subtitle"], "Saved straight to your computer");
    EXPECT_EQ(tools[38]["id"], "files.rename");
    EXPECT_EQ(tools[38]["isAvailable"], true);
    EXPECT_FALSE(tools[6]["unavailableReason"].get<std::string>().empty());
}

TEST(Usage, OutputThatCannotBeWrittenIsAFailure) {
    const Home home;
    EXPECT_EQ(home.shell(TAMBLE_PROGRAM " tools > /dev/full").status, 1);
}

}  // namespace
}  // namespace tamble::test
