#include <Tamble/CommandLine/Text/SafeText.h>

#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/Json/Json.h>

#include <array>
#include <csignal>
#include <regex>
#include <thread>

#include "Program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

TEST(Job, SavesNextToTheOriginalsAndIsTakenBackToTheByte) {
    const Home home;
    home.addPicture("Photos/2.bmp");
    home.addPicture("Photos/10.bmp");
    home.addPicture("Photos/deeper/3.bmp");
    home.addFile("Photos/notes.txt", "not a picture");
    const auto before = home.contents();

    const Finished run = home.tamble({"image.convert", "--to", "png", "Photos"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.errors, "");
    EXPECT_THAT(run.output, MatchesRegex("Saved 3 new files, [0-9.]+ kB → .*\\. To undo: tamble undo\n"));
    EXPECT_TRUE(fs::exists(home.folder() / "Photos/deeper/3.png"));

    EXPECT_THAT(home.tamble({"activity"}).output, AllOf(HasSubstr("Convert"), HasSubstr("3 new files")));
    const Finished undo = home.tamble({"undo"});
    EXPECT_EQ(undo.status, 0);
    EXPECT_THAT(undo.output, HasSubstr("3 new files removed"));
    EXPECT_EQ(home.contents(), before);
    EXPECT_THAT(home.tamble({"activity"}).output, HasSubstr("Undone"));
    EXPECT_EQ(home.tamble({"undo"}).status, 1);
}

TEST(Job, ReplacedOriginalsComeBackFromTheBin) {
    const Home home;
    home.addPicture("a.bmp");
    const auto before = home.contents();
    EXPECT_EQ(home.tamble({"image.convert", "--to", "png", "--save", "replace", "a.bmp"}).status, 0);
    EXPECT_FALSE(fs::exists(home.folder() / "a.bmp"));
    EXPECT_TRUE(fs::exists(home.folder() / "a.png"));
    const Json jobs = parseJson(home.tamble({"activity", "--json"}).output);
    const std::string id = jobs.at(0).at("id");
    EXPECT_EQ(home.tamble({"undo", id.substr(0, 8)}).status, 0);
    EXPECT_EQ(home.contents(), before);
    EXPECT_EQ(home.tamble({"activity", "--clear"}).output, "Forgot 1 job.\n");
    EXPECT_EQ(home.tamble({"activity"}).output, "Finished jobs will show up here.\n");
}

TEST(Job, JsonIsOneDocumentWithOneOutcomeForEachInput) {
    const Home home;
    home.addPicture("1.bmp");
    home.addFile("2.png", "this is no picture");
    home.addPicture("3.bmp");
    ASSERT_EQ(home.tamble({"image.convert", "--to", "png", "3.bmp"}).status, 0);

    const Finished run =
        home.tamble({"image.convert", "--to", "png", "--json", "3.png", "2.png", "1.bmp", "--save", "out",
                     "--no-skip-if-already-in-format", "--remove-location"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr("2.png: Couldn't open this file."));
    const Json result = parseJson(run.output);
    ASSERT_EQ(result.at("items").size(), 3U);
    const Json& items = result.at("items");
    EXPECT_EQ(items[0]["outcome"]["done"]["_0"], fileURL(fs::canonical(home.folder()) / "out/3.png"));
    EXPECT_EQ(items[1]["outcome"]["failed"]["_0"]["stage"], "processing");
    EXPECT_EQ(items[1]["file"]["byteSize"], 18);
    EXPECT_EQ(items[2]["file"]["contentType"], "com.microsoft.bmp");
    EXPECT_EQ(result.at("wasCancelled"), false);
    EXPECT_EQ(result.at("undo").at("createdFiles").size(), 2U);
    const Json jobs = parseJson(home.tamble({"activity", "--json"}).output);
    EXPECT_EQ(result.at("activityID"), jobs.at(0).at("id"));
}

TEST(Job, SkippedAndFailedFilesAreToldWithTheirReasons) {
    const Home home;
    home.addPicture("a.bmp");
    home.addFile("broken.png", "no");
    ASSERT_EQ(home.tamble({"image.convert", "--to", "png", "a.bmp"}).status, 0);
    const Finished run = home.tamble({"image.convert", "--to", "png", "a.png"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output, AllOf(HasSubstr("Nothing was saved. 1 skipped: "), Not(HasSubstr("undo"))));
    const Finished failed = home.tamble({"image.convert", "--to", "webp", "broken.png", "a.bmp"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.output,
                AllOf(HasSubstr("Saved 1 new file"), HasSubstr("1 failed: Couldn't open this file.")));
    EXPECT_THAT(failed.errors, HasSubstr("broken.png: Couldn't open this file."));
    EXPECT_EQ(parseJson(home.tamble({"activity", "--json"}).output).size(), 2U);
}

TEST(Job, ADryRunShowsEveryPlaceAndTouchesNothing) {
    const Home home;
    home.addPicture("Photos/a.bmp");
    home.addPicture("Photos/sub/a.bmp");
    home.addFile("Photos/a.webp", "taken");
    const auto before = home.contents();
    const Finished run = home.tamble({"image.convert", "-n", "Photos"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output, AllOf(HasSubstr("Photos/a.bmp → Photos/a 2.webp\n"),
                                  HasSubstr("Photos/sub/a.bmp → Photos/sub/a.webp\n"),
                                  HasSubstr("Nothing was touched.")));
    const Finished into =
        home.tamble({"image.convert", "Photos", "--dry-run", "--json", "--save", "new/place"});
    const Json plan = parseJson(into.output);
    EXPECT_EQ(plan.at("items").at(2).at("outcome").at("planned").at("_0"),
              fileURL(home.folder() / "new/place/a 2.webp"));
    EXPECT_THAT(
        home.tamble({"image.convert", "-n", "Photos/a.bmp", "--save", "replace", "--clash", "replace"})
            .output,
        HasSubstr("the original goes to the Bin"));
    EXPECT_EQ(home.contents(), before);
    EXPECT_FALSE(fs::exists(home.data()));
    EXPECT_FALSE(fs::exists(home.data().parent_path().parent_path().parent_path() / ".config"));
}

TEST(Job, OddNamesGoThroughAndNeverReachTheTerminalRaw) {
    const Home home;
    const std::vector<std::string> names{"-n.bmp", "line\nbreak.bmp", "\x1b[31mred.bmp", "bytes\xff\xfe.bmp",
                                         "[0].bmp"};
    for (const auto& name : names) home.addPicture(name);
    std::vector<std::string> words{"image.convert", "--to", "png", "--"};
    words.insert(words.end(), names.begin(), names.end());
    const Finished run = home.tamble(words);
    EXPECT_EQ(run.status, 0) << run.errors;
    for (const auto& name : names) {
        EXPECT_TRUE(fs::exists(home.folder() / (name.substr(0, name.size() - 3) + "png"))) << safeText(name);
    }
    std::string list;
    for (const auto& name : names) list += name + '\0';
    const Finished plan = home.tamble({"image.convert", "-n0"}, list);
    EXPECT_EQ(plan.status, 0) << plan.errors;
    EXPECT_THAT(plan.output,
                AllOf(HasSubstr("line\\nbreak.bmp → "), HasSubstr("-n.bmp → "), Not(HasSubstr("\x1b"))));
    EXPECT_EQ(parseJson(home.tamble({"image.convert", "-n0", "--json"}, list).output).at("items").size(), 5U);
}

TEST(Job, NothingToWorkOnIsSaid) {
    const Home home;
    home.addFile("notes.txt", "words");
    const Finished run = home.tamble({"image.convert", "notes.txt"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr("None of 1 file"));
    const Finished gone = home.tamble({"image.convert", "-0"}, std::string("gone.bmp\0", 9));
    EXPECT_EQ(gone.status, 1);
    EXPECT_THAT(gone.errors, HasSubstr("1 items couldn't be read."));
}

TEST(Job, CtrlCDuringProcessingSavesNothing) {
    const Home home;
    const auto large = home.addPicture("0.bmp", 3000, 2000);
    for (int i = 1; i < 30; ++i) fs::create_hard_link(large, home.folder() / (std::to_string(i) + ".bmp"));
    const auto before = home.contents().size();
    const Finished run = home.tamble({"image.convert", "--to", "avif", "."}, {}, [](pid_t program) {
        std::this_thread::sleep_for(std::chrono::milliseconds(700));
        kill(program, SIGINT);
        kill(program, SIGINT);
    });
    EXPECT_EQ(run.status, 130);
    EXPECT_EQ(run.output, "Stopped before saving; nothing was saved.\n");
    EXPECT_THAT(run.errors, HasSubstr("Stopping; nothing will be saved.\n"));
    EXPECT_EQ(home.contents().size(), before);
    EXPECT_EQ(home.tamble({"activity"}).output, "Finished jobs will show up here.\n");
}

TEST(Job, ProgressIsOneLineThatFitsTheTerminal) {
    const Home home;
    for (int i = 0; i < 12; ++i)
        home.addPicture("写真の長い名前 \x1b[7m" + std::to_string(i) + ".bmp", 900, 700);
    const std::regex steering("\x1b\\[[0-9;]*[mK]");
    for (const unsigned short cells : std::array<unsigned short, 3>{10, 40, 100}) {
        const bool noColour = cells == 40;
        const Finished drawn =
            home.tambleOnTerminal({"image.convert", "--save", "out", "."}, cells, noColour);
        EXPECT_THAT(drawn.errors, HasSubstr("\r"));
        EXPECT_THAT(drawn.errors, Not(HasSubstr("\x1b[7m")));
        if (noColour) {
            const std::string withoutErasing = std::regex_replace(drawn.errors, std::regex("\x1b\\[K"), "");
            EXPECT_THAT(withoutErasing, Not(HasSubstr("\x1b")));
        }
        std::istringstream lines(std::regex_replace(drawn.errors, steering, ""));
        for (std::string line; std::getline(lines, line, '\r');) {
            if (line.ends_with('\n')) line.pop_back();
            EXPECT_LT(displayWidth(line), cells) << line;
        }
        EXPECT_THAT(drawn.output, HasSubstr("Saved 12 new files"));
        home.tamble({"undo"});
    }
}

TEST(Scan, TellsWhatIsThereAndWhichToolsFit) {
    const Home home;
    home.addPicture("Album/1.bmp");
    home.addPicture("Album/2024/2.bmp");
    home.addFile("Album/notes.xyz", "?");
    fs::create_symlink("1.bmp", home.folder() / "Album/link.bmp");
    const Finished run = home.tamble({"scan", "Album"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output, AllOf(HasSubstr("Album/"), HasSubstr("2 photos"), HasSubstr("image.convert")));
    EXPECT_THAT(run.errors, HasSubstr("Shortcuts to other folders aren't followed."));
    const Json scan = parseJson(home.tamble({"scan", "Album", "--json", "--no-subfolders"}).output);
    EXPECT_EQ(scan.at("files").size(), 1U);
    EXPECT_EQ(scan.at("kinds").at("images"), 1);
    EXPECT_EQ(scan.at("otherFileCount"), 1);
    EXPECT_EQ(scan.at("skippedLinkCount"), 1);
}

TEST(Estimate, TellsASizeAndWritesNothing) {
    const Home home;
    home.addPicture("a.bmp", 400, 300);
    const auto before = home.contents();
    const Json estimate =
        parseJson(home.tamble({"estimate", "image.convert", "--to", "webp", "a.bmp", "--json"}).output);
    EXPECT_GT(estimate.at("estimatedBytes"), 0);
    EXPECT_LT(estimate.at("estimatedBytes"), estimate.at("inputBytes"));
    EXPECT_THAT(home.tamble({"estimate", "image.convert", "a.bmp"}).output, HasSubstr("About "));
    EXPECT_EQ(home.contents(), before);
}

}  // namespace
}  // namespace tamble::test
