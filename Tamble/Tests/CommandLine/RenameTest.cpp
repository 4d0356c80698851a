#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/Json/Json.h>

#include <csignal>
#include <fstream>
#include <thread>

#include "Program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

TEST(Rename, InPlaceIsOneJobThatIsUndone) {
    const Home home;
    for (const char* name : {"IMG_2.JPG", "IMG_10.JPG", "sub/note.txt"}) home.addFile(name, name);
    const auto before = home.contents();
    const Finished run = home.tamble(
        {"files.rename", ".", "--text", "Goa trip", "--numbering", "after", "--start-number", "9"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "Renamed 3 files. To undo: tamble undo\n");
    EXPECT_TRUE(fs::exists(home.folder() / "Goa trip 009.JPG"));
    EXPECT_TRUE(fs::exists(home.folder() / "sub/Goa trip 011.txt"));
    EXPECT_THAT(home.tamble({"activity"}).output,
                AllOf(HasSubstr("Rename many files"), HasSubstr("3 files renamed")));
    EXPECT_EQ(home.tamble({"undo"}).output, "3 files have their old names again.\n");
    EXPECT_EQ(home.contents(), before);
}

TEST(Rename, APreviewStandsInColumnsAndTouchesNothing) {
    const Home home;
    for (const char* name : {"a.txt", "日本語.txt", "b.txt", "taken.txt"}) home.addFile(name, name);
    const auto before = home.contents();
    const std::vector<std::string> words{"files.rename", "-n",     "a.txt", "日本語.txt",     "b.txt",
                                         "--keep",       "--find", "b",     "--replace-with", "taken"};
    const Finished run = home.tamble(words);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(
        run.output,
        "a.txt       →  a.txt       This file already has its new name\n"
        "日本語.txt  →  日本語.txt  This file already has its new name\n"
        "b.txt       →  taken.txt   Another file already has this name\n"
        "0 files would be renamed, 2 skipped, 1 has a problem, and until that is mended none is renamed. "
        "Nothing was touched.\n");
    auto asJson = words;
    asJson.emplace_back("--json");
    const Json items = parseJson(home.tamble(asJson).output).at("items");
    EXPECT_EQ(items[0]["outcome"]["skipped"]["_0"], parseJson(R"({"sameName":{}})"));
    EXPECT_EQ(std::pair(items[2]["newName"], items[2]["problem"]["code"]),
              std::pair(Json("taken.txt"), Json("exists")));
    EXPECT_EQ(home.contents(), before);
    EXPECT_EQ(home.tamble({"activity"}).output, "Finished jobs will show up here.\n");
}

TEST(Rename, InPlaceRefusesWhileANameHasAProblem) {
    const Home home;
    for (const char* name : {"a.txt", "b.txt", "c.png"}) home.addFile(name, name);
    const auto before = home.contents();
    const Finished run = home.tamble({"files.rename", "--text", "x", "."});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "Nothing was renamed: 2 names have a problem.\n");
    EXPECT_EQ(run.errors,
              "a.txt → x.txt: Two files would get this name\n"
              "b.txt → x.txt: Two files would get this name\n"
              "Numbers tell files of one name apart: --numbering after\n");
    const Json result = parseJson(home.tamble({"files.rename", "--text", "x", ".", "--json"}).output);
    EXPECT_EQ(result.at("items").at(0).at("outcome").at("failed").at("_0").at("code"), "duplicate");
    EXPECT_EQ(home.contents(), before);
}

TEST(Rename, CopiesLeaveTheFilesAlone) {
    const Home home;
    for (const char* name : {"a.txt", "b.txt"}) home.addFile(name, name);
    const std::vector<std::string> words{"files.rename", "a.txt", "b.txt",  "--copies",
                                         "--text",       "x",     "--save", "out"};
    auto dry = words;
    dry.emplace_back("-n");
    EXPECT_EQ(home.tamble(dry).output,
              "a.txt  →  out/x.txt    Two files would get this name\n"
              "b.txt  →  out/x 2.txt  Two files would get this name\n"
              "2 copies would be saved. Nothing was touched.\n");
    const Finished run = home.tamble(words);
    EXPECT_THAT(run.output, HasSubstr("Saved 2 new files"));
    EXPECT_TRUE(fs::exists(home.folder() / "out/x 2.txt") && fs::exists(home.folder() / "a.txt"));
    EXPECT_THAT(home.tamble({"undo"}).output, HasSubstr("2 new files removed"));
    EXPECT_EQ(home.contents().size(), 2U);
}

TEST(Rename, NamesAreBytesAndOptionsMayBeEmpty) {
    const Home home;
    home.addFile("caf\xE9 1.JPG", "latin");
    home.addFile("-rf.JPG", "dashes");
    home.addFile("a\nb.JPG", "lines");
    const Finished run = home.tamble({"files.rename", ".", "--suffix", "!", "--new-extension", ""});
    EXPECT_EQ(run.status, 0) << run.errors;
    for (const char* name : {"caf\xE9 1!", "-rf!", "a\nb!"})
        EXPECT_TRUE(fs::exists(home.folder() / name)) << name;
    EXPECT_EQ(home.tamble({"undo", "--json"}).status, 0);
    EXPECT_TRUE(fs::exists(home.folder() / "caf\xE9 1.JPG"));
}

TEST(Rename, AFileThatWasBeingRenamedIsFoundByTheNextJob) {
    const Home home;
    for (const char* name : {"1", "2"}) home.addFile(name, name);
    const fs::path hidden = home.folder() / ".tamble-0F8FAD5B-D9CB-469F-A165-70867728950E";
    fs::rename(home.folder() / "1", hidden);
    const auto line = [&](const char* from, const fs::path& parked, const char* to) {
        return R"({"renaming":{"_0":{"from":")" + fileURL(home.folder() / from) + R"(","parked":")" +
               fileURL(parked) + R"(","to":")" + fileURL(home.folder() / to) + "\",\"inode\":0}}}\n";
    };
    fs::create_directories(home.data() / "journal");
    std::ofstream(home.data() / "journal/ID.journal")
        << R"({"job":{"id":"ID","toolID":"files.rename","subject":"1","inputBytes":2,"started":0}})" << '\n'
        << line("1", hidden, "2") << line("2", home.folder() / ".tamble-other", "3") << R"({"begun":{}})"
        << '\n';
    EXPECT_EQ(home.tamble({"files.rename", "-n", "2"}).errors, "") << "a dry run touches nothing";
    const Finished run = home.tamble({"files.rename", "1", "--text", "new"});
    EXPECT_THAT(run.errors, HasSubstr("A job over “1” was interrupted"));
    EXPECT_THAT(run.errors, HasSubstr("while it renamed: all files have their old names.\n"));
    EXPECT_EQ(run.output, "Renamed 1 file. To undo: tamble undo\n");
    EXPECT_TRUE(fs::exists(home.folder() / "new") && fs::exists(home.folder() / "2") && !fs::exists(hidden));
}

std::size_t hiddenIn(const fs::path& folder) {
    std::size_t count = 0;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        count += entry->path().filename().native().starts_with(".tamble-") ? 1U : 0U;
    }
    return count;
}

/// Kills the program a moment after the first file got a hidden name.
void killAfterFirst(pid_t program, const fs::path& folder, std::chrono::microseconds moment) {
    const auto giveUp = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (hiddenIn(folder) == 0 && std::chrono::steady_clock::now() < giveUp) std::this_thread::yield();
    std::this_thread::sleep_for(moment);
    ::kill(program, SIGKILL);
}

TEST(Rename, KilledAtAnyMomentAllHaveOldNamesOrAllNewOnes) {
    const Home home;
    constexpr std::size_t files = 400;
    // Every name but the last is in the way of another, so that all wait under hidden names.
    for (std::size_t i = 1; i <= files; ++i) home.addFile("f/" + std::to_string(i), std::to_string(i));
    const auto before = home.contents();
    const std::vector<std::string> words{"files.rename", "f", "--text",      "", "--numbering",    "after",
                                         "--digits",     "1", "--separator", "", "--start-number", "2"};
    int putBack = 0;
    for (int attempt = 0; attempt < 25; ++attempt) {
        SCOPED_TRACE(attempt);
        home.tamble(words, {}, [&](pid_t program) {
            killAfterFirst(program, home.folder() / "f", std::chrono::microseconds(250 * attempt));
        });
        const Finished next = home.tamble({"activity"});
        ASSERT_EQ(hiddenIn(home.folder() / "f"), 0U) << next.errors;
        putBack += next.errors.find("all files have their old names") == std::string::npos ? 0 : 1;
        if (home.contents() != before) {
            EXPECT_TRUE(fs::exists(home.folder() / "f/401"));
            ASSERT_EQ(home.tamble({"undo"}).output, "400 files have their old names again.\n");
        }
        ASSERT_EQ(home.contents(), before);
    }
    EXPECT_GT(putBack, 0) << "none was killed while it renamed";
    EXPECT_EQ(home.tamble({"activity"}).errors, "");
}

TEST(Rename, AnUndoKilledAtAnyMomentIsGoneOnWith) {
    const Home home;
    for (int i = 1; i <= 400; ++i) home.addFile("f/" + std::to_string(i), std::to_string(i));
    const auto before = home.contents();
    for (int attempt = 0; attempt < 20; ++attempt) {
        SCOPED_TRACE(attempt);
        ASSERT_EQ(home.tamble({"files.rename", "f", "--text", "", "--numbering", "after", "--digits", "1",
                               "--separator", "", "--start-number", "2"})
                      .status,
                  0);
        home.tamble({"undo"}, {}, [&](pid_t program) {
            killAfterFirst(program, home.folder() / "f", std::chrono::microseconds(400 * attempt));
        });
        if (home.contents() != before) {
            EXPECT_THAT(home.tamble({"undo"}).output, HasSubstr("400 files have"));
        }
        ASSERT_EQ(home.contents(), before);
    }
}

}  // namespace
}  // namespace tamble::test
