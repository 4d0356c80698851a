#include <Tamble/Model/ActivityStore.h>
#include <Tamble/Model/ChosenHelpers.h>
#include <Tamble/Model/PopularTools.h>
#include <Tamble/Model/PreferencesStore.h>

#include <TambleCore/Support/Log.h>

#include <fstream>
#include <thread>

#include <TambleCoreTests/TestFolder.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble {
namespace {

using namespace std::chrono_literals;
using std::chrono::days;
using testing::ElementsAre;
using testing::HasSubstr;

class Preferences : public testing::Test {
  protected:
    void write(std::string_view content) const {
        std::filesystem::create_directories(PreferencesStore::defaultFile().parent_path());
        std::ofstream(PreferencesStore::defaultFile()) << content;
    }
    TestFolder folder;
    PreferencesStore preferences;
};

TEST_F(Preferences, AreRememberedAndDefaulted) {
    EXPECT_EQ(preferences.saveFolders(), SavePreferences::forFolders());
    EXPECT_EQ(preferences.saveLooseFiles(), SavePreferences::forLooseFiles());
    EXPECT_TRUE(preferences.rememberFolderChoice());
    write(R"({"a.later.version": [1], "save.folders": {"mode": "none"}, "window.appearance": "sepia",
              "jobs.atOnce": -4, "window.size": {"width": 0, "height": 9, "isMaximized": false},
              "helpers.media": 7, "jobs.notifyWhenDone": "no", "tools.uses": [1, {"toolID": "pdf.sign"}]})");
    EXPECT_EQ(preferences.saveFolders(), SavePreferences::forFolders());
    EXPECT_EQ(preferences.appearance(), Appearance::system);
    EXPECT_EQ(preferences.atOnce(), 0);
    EXPECT_EQ(preferences.windowSize(), std::nullopt);
    EXPECT_EQ(preferences.mediaHelper(), "");
    EXPECT_TRUE(preferences.notifyWhenDone());
    EXPECT_TRUE(preferences.toolUses().empty());

    const SavePreferences replacing{.mode = SavePreferences::Mode::replace, .clashPolicy = ClashPolicy::skip};
    const WindowSize size{.width = 980, .height = 720, .isMaximized = true};
    const std::filesystem::path model = "/models/not\xFFtext.onnx";
    preferences.setSaveFolders(replacing);
    preferences.setRememberFolderChoice(false);
    preferences.setAppearance(Appearance::dark);
    preferences.setAtOnce(1000);
    preferences.setWindowSize(size);
    preferences.setNotifyWhenDone(false);
    preferences.setSubjectModel(model);
    preferences.setMediaHelper("/usr/bin/helper");
    const PreferencesStore later;
    EXPECT_EQ(later.saveFolders(), replacing);
    EXPECT_FALSE(later.rememberFolderChoice());
    EXPECT_EQ(later.appearance(), Appearance::dark);
    EXPECT_EQ(later.atOnce(), PreferencesStore::mostAtOnce);
    EXPECT_EQ(later.windowSize(), size);
    EXPECT_FALSE(later.notifyWhenDone());
    EXPECT_EQ(later.subjectModel(), model);
    EXPECT_EQ(later.mediaHelper(), "/usr/bin/helper");
    preferences.setMediaHelper("");
    EXPECT_EQ(later.mediaHelper(), "");
    EXPECT_THAT(contentOf(PreferencesStore::defaultFile()), HasSubstr("a.later.version"));
}

TEST_F(Preferences, WhatCannotBeReadIsMovedAsideNotLost) {
    for (const char* damaged : {R"({"mine": tru)", "[1]"}) {
        write(damaged);
        EXPECT_EQ(preferences.appearance(), Appearance::system);
        EXPECT_EQ(contentOf(PreferencesStore::defaultFile()), damaged) << "reading changes nothing";
        preferences.setAppearance(Appearance::light);
        EXPECT_EQ(preferences.appearance(), Appearance::light);
    }
    EXPECT_EQ(contentOf(PreferencesStore::defaultFile() += ".unreadable"), R"({"mine": tru)");
    EXPECT_THAT(namesIn(PreferencesStore::defaultFile().parent_path()), HasSubstr(".unreadable-"));
}

TEST_F(Preferences, WritersAtTheSameTimeLoseNothing) {
    constexpr int each = 20;
    const pid_t child = ::fork();
    for (int i = 0; i < each; ++i) {
        if (child == 0) preferences.setAtOnce(i % 8);
        preferences.countUse(child == 0 ? "pdf.sign" : "image.convert", std::chrono::system_clock::now());
    }
    if (child == 0) ::_exit(0);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    double uses = 0;
    for (const ToolUse& use : preferences.toolUses()) uses += use.count;
    EXPECT_NEAR(uses, 2 * each, 0.01);
    EXPECT_EQ(preferences.atOnce(), (each - 1) % 8);
}

TEST_F(Preferences, TheChosenNetworkIsUsedUnlessTheEnvironmentNamesOne) {
    const char* variable = "TAMBLE_SUBJECT_MODEL";
    ::unsetenv(variable);
    preferences.setSubjectModel(folder.files() / "gone.onnx");
    EXPECT_EQ(chosenHelpers(preferences), Environment());
    const auto model = folder.write("mine.onnx", "");
    preferences.setSubjectModel(model);
    EXPECT_EQ(chosenHelpers(preferences), (Environment{{variable, model.native()}}));
    ::setenv(variable, "/another", 1);
    EXPECT_EQ(chosenHelpers(preferences), Environment());
    ::unsetenv(variable);
}

class Popular : public testing::Test {
  protected:
    std::vector<std::string> idsAfter(days later) const {
        std::vector<std::string> ids;
        for (const ToolInfo* tool : popularTools(uses, start + later)) ids.push_back(tool->id);
        return ids;
    }
    void use(const std::string& tool, int times, days later) {
        for (int i = 0; i < times; ++i) countUse(uses, tool, start + later);
    }
    std::vector<ToolUse> uses;
    std::chrono::system_clock::time_point start = std::chrono::sys_days(std::chrono::year(2026) / 11 / 13);
};

TEST_F(Popular, ToolsAreThoseUsedMostAndMostRecently) {
    EXPECT_THAT(idsAfter(days(0)), ElementsAre("image.convert", "image.compress", "pdf.merge", "pdf.compress",
                                               "pdf.sign", "files.rename"));
    use("pdf.split", 6, days(0));
    use("video.trim", 9, days(0));
    use("of.another.version", 9, days(0));
    use("files.rename", 2, days(28));
    EXPECT_THAT(idsAfter(days(28)), ElementsAre("files.rename", "pdf.split", "image.convert",
                                                "image.compress", "pdf.merge", "pdf.compress"));
    use("pdf.split", 1, days(28));
    EXPECT_EQ(idsAfter(days(28)).front(), "pdf.split");
    EXPECT_EQ(idsAfter(days(365)).front(), "image.convert") << "long ago is forgotten";
    for (int i = 0; i < 1000; ++i) use(std::to_string(i), 1, days(30));
    EXPECT_LE(uses.size(), 64U);
    EXPECT_EQ(idsAfter(days(30)).front(), "pdf.split");
}

TEST_F(Popular, ToolsUsedWhileTheClockWasAheadDoNotStayForEver) {
    use("pdf.organize", 1, days(400));
    use("image.rotate", 2, days(0));
    EXPECT_EQ(idsAfter(days(0)).front(), "image.rotate");
    use("pdf.organize", 2, days(0));
    EXPECT_EQ(idsAfter(days(0)).front(), "pdf.organize");
    EXPECT_EQ(idsAfter(days(90)).front(), "pdf.organize");
}

TEST_F(Popular, NumbersOfAFileThatWasChangedByHandDoNoHarm) {
    uses = {{"pdf.split", 1e300, "2026-11-13T00:00:00Z"},
            {"pdf.organize", -5, "2026-11-13T00:00:00Z"},
            {"pdf.toImages", 5, "yesterday"}};
    use("image.rotate", 3, days(0));
    EXPECT_THAT(idsAfter(days(0)), ElementsAre("pdf.split", "image.rotate", "image.convert", "image.compress",
                                               "pdf.merge", "pdf.compress"));
}

TEST(PopularTools, CountEveryJobThatIsRemembered) {
    const TestFolder folder;
    const auto entry = [](const char* tool) {
        return ActivityEntry{
            .id = newUUID(), .date = isoDate(std::chrono::system_clock::now()), .toolID = tool};
    };
    ActivityStore(JobEngine{}).add(entry("pdf.toImages"));
    ActivityStore(JobEngine{}).add(entry("unknown"));
    const auto uses = PreferencesStore().toolUses();
    ASSERT_EQ(uses.size(), 1U);
    EXPECT_EQ(std::tuple(uses[0].toolID, uses[0].count), std::tuple("pdf.toImages", 1.0));

    // A folder in the place of the lock stops everybody, whoever runs the test.
    const auto lock = PreferencesStore::defaultFile() += ".change.lock";
    std::filesystem::remove(lock);
    std::filesystem::create_directory(lock);
    const LogCapture log;
    EXPECT_TRUE(ActivityStore(JobEngine{}).add(entry("pdf.sign"))) << "the job itself is remembered";
    EXPECT_THAT(log.text(), HasSubstr("activity: Couldn't count the use of a tool: "));
}

}  // namespace
}  // namespace tamble
