#include <Tamble/Model/ActivityStore.h>

#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Platform/SystemFileOperations.h>
#include <TambleCore/Support/Log.h>

#include <thread>

#include <TambleCoreTests/Jobs/KillingFileOperations.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble {
namespace {

using std::filesystem::path;

class Activity : public testing::Test {
  protected:
    ActivityStore store() const { return ActivityStore(engine, file()); }
    path file() const { return folder.home() / "data/tamble/activity.json"; }
    ActivityEntry entry(const std::string& subject) const {
        return {.id = newUUID(), .date = isoDate(std::chrono::system_clock::now()), .subject = subject};
    }
    /// A finished job over one file whose name is no text.
    ActivityEntry finishedJob() const {
        InputFile input{.url = folder.write("not\xFFtext.png", "old"),
                        .root = folder.files(),
                        .byteSize = 3,
                        .isLoose = true};
        return activityEntry(startedJob("image.convert", {&input, 1}),
                             engine.run({input}, CopyThroughProcessor(), {}));
    }

    TestFolder folder;
    JobEngine engine{.fileOps = std::make_shared<SystemFileOperations>()};
};

TEST_F(Activity, UndoesAJobThatAnotherRunRecorded) {
    const ActivityEntry job = finishedJob();
    EXPECT_EQ(std::tuple(job.doneCount, job.inputBytes, job.outputBytes), std::tuple(1, 3, 3));
    store().add(job);
    ASSERT_TRUE(std::filesystem::exists(job.outputFiles.front()));

    ActivityStore later = store();
    later.load();
    ASSERT_EQ(later.entries().size(), 1U);
    EXPECT_EQ(encodeJson(later.entries().front()), encodeJson(job));
    int changes = 0;
    later.onChange = [&] {
        ++changes;
        if (changes == 1) {
            EXPECT_TRUE(later.undoingIDs().contains(job.id));
            EXPECT_EQ(later.undo(job.id), std::nullopt) << "one undo at a time";
        }
    };
    const LogCapture log;
    EXPECT_EQ(later.undo(job.id), (UndoReport{.removedOutputs = 1}));
    EXPECT_FALSE(std::filesystem::exists(job.outputFiles.front()));
    EXPECT_TRUE(later.undoingIDs().empty());
    EXPECT_TRUE(later.undoneIDs().contains(job.id));
    EXPECT_THAT(log.text(), testing::HasSubstr("activity: Undid job: 1 removed, 0 restored, 0 problems\n"));

    // A program that still shows the job as it was does not undo it again.
    ActivityStore third = store();
    third.load();
    EXPECT_TRUE(third.entries().front().undone);
    EXPECT_EQ(third.undo(job.id), std::nullopt);
    third.clear();
    ActivityStore fourth = store();
    fourth.load();
    EXPECT_TRUE(fourth.entries().empty());
}

TEST_F(Activity, KeepsTheNewestEntriesFirst) {
    ActivityStore full = store();
    std::vector<ActivityEntry> entries;
    for (std::size_t i = 0; i < ActivityStore::maximumEntries; ++i)
        entries.push_back(entry(std::to_string(i)));
    std::filesystem::create_directories(file().parent_path());
    std::ofstream(file()) << writeJson(encodeJson(entries));
    full.add(entry("new"));
    ASSERT_EQ(full.entries().size(), ActivityStore::maximumEntries);
    EXPECT_EQ(full.entries().front().subject, "new");
    EXPECT_EQ(full.entries().back().subject, std::to_string(ActivityStore::maximumEntries - 2));
}

TEST_F(Activity, AnUnreadableFileIsMovedAsideNotLost) {
    std::filesystem::create_directories(file().parent_path());
    for (const char* content : {"{]", "[{\"id\": 7}"}) {
        std::ofstream(file()) << content;
        const LogCapture log;
        ActivityStore fresh = store();
        fresh.load();
        EXPECT_TRUE(fresh.entries().empty());
        EXPECT_EQ(contentOf(file()), content) << "reading changes nothing";
        EXPECT_THAT(log.text(), testing::StartsWith("activity: Activity file unreadable, starting fresh: "));
        fresh.add(entry("new"));
        EXPECT_EQ(fresh.entries().size(), 1U);
    }
    EXPECT_EQ(contentOf(path(file()) += ".unreadable"), "{]");
    EXPECT_THAT(namesIn(file().parent_path()), testing::HasSubstr("activity.json.unreadable-"));
}

TEST_F(Activity, AnEntryThatCannotBeDecodedCostsOnlyItself) {
    const std::string unknown = R"({"id":"of a later version", "date": 7})";
    std::filesystem::create_directories(file().parent_path());
    std::ofstream(file()) << "[" << unknown << "]";
    ActivityStore log = store();
    log.add(finishedJob());
    ASSERT_EQ(log.entries().size(), 1U);
    EXPECT_EQ(log.undo("of a later version"), std::nullopt);
    EXPECT_EQ(log.undo(log.entries().front().id), (UndoReport{.removedOutputs = 1}));
    EXPECT_THAT(contentOf(file()), testing::HasSubstr(unknown));
}

TEST_F(Activity, ForgetsTheOldestWhenTheLogGrowsTooLarge) {
    const std::string large(ActivityStore::maximumBytes / 2, 'x');
    ActivityStore log = store();
    for (const char* number : {"1", "2", "3"}) log.add(entry(number + large));
    ASSERT_EQ(log.entries().size(), 1U);
    log.add(entry("small"));
    EXPECT_EQ(log.entries().size(), 2U);
    log.add(entry(large + large));
    EXPECT_EQ(log.entries().size(), 1U) << "the newest stays, whatever its size";
}

TEST_F(Activity, AFailedSaveChangesNothingInMemory) {
    const path blocked = folder.write("blocked", "a file");
    ActivityStore unsaved(engine, blocked / "activity.json");
    const LogCapture log;
    unsaved.add(entry("kept in memory"));
    EXPECT_EQ(unsaved.entries().size(), 1U);
    EXPECT_THAT(log.text(), testing::StartsWith("activity: Couldn't save activity: "));
}

TEST_F(Activity, AnUndoOfRenamesThatWasKilledIsGoneOnWith) {
    // Swapped: no name tells which file stands under it.
    const path a = folder.write("a", "was b"), b = folder.write("b", "was a");
    ActivityEntry renaming = entry("names");
    renaming.undo.renamedItems = {{a, b}, {b, a}};
    for (int call = 1;; ++call) {
        SCOPED_TRACE(call);
        renaming.id = newUUID();
        store().add(renaming);
        const bool isKilled =
            KillingFileOperations::kill(call, KillingFileOperations::When::after, [&](const auto& killing) {
                ActivityStore dying(JobEngine{.fileOps = killing}, file());
                dying.load();
                dying.undo(renaming.id);
            });
        if (isKilled) {
            ActivityStore next = store();
            next.load();
            EXPECT_EQ(next.undo(renaming.id), (UndoReport{.restoredItems = 2}));
        }
        ASSERT_EQ(contentOf(a) + contentOf(b), "was awas b");
        EXPECT_THAT(namesIn(file().parent_path()), testing::Not(testing::HasSubstr("undoing")));
        if (!isKilled) break;
        folder.write("a", "was b");
        folder.write("b", "was a");
        ASSERT_LT(call, 10);
    }
}

TEST_F(Activity, WritersAtTheSameTimeLoseNothing) {
    constexpr int each = 20;
    const pid_t child = ::fork();
    const std::string who = child == 0 ? "child " : "parent ";
    ActivityStore writer = store();
    for (int i = 0; i < each; ++i) writer.add(entry(who + std::to_string(i)));
    if (child == 0) ::_exit(0);
    std::jthread([&] {
        ActivityStore other = store();
        for (int i = 0; i < each; ++i) other.add(entry("thread " + std::to_string(i)));
    }).join();
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ActivityStore all = store();
    all.load();
    EXPECT_EQ(all.entries().size(), 3U * each);
}

TEST(ActivityTexts, SayWhatPeopleRead) {
    EXPECT_EQ(undoSentence({.removedOutputs = 12, .restoredItems = 3}, {}),
              "12 new files removed, 3 files put back.");
    EXPECT_EQ(undoSentence({.removedOutputs = 1, .problems = 2, .keptBecauseChanged = 4}, {}),
              "1 new files removed. 2 items couldn't be put back (the Bin may have been "
              "emptied). "
              "4 new files were changed after the job, so they were kept.");
    const UndoRecord renames{.renamedItems = {{"/a", "/b"}}};
    EXPECT_EQ(undoSentence({.restoredItems = 2000}, renames), "2000 files have their old names again.");
    EXPECT_EQ(undoSentence({.restoredItems = 1, .problems = 2}, renames),
              "1 file has its old name again. 2 files couldn't get their old names back.");
    const auto file = [](const char* url, const char* root, bool isLoose) {
        return InputFile{.url = url, .root = root, .isLoose = isLoose};
    };
    using Files = std::vector<InputFile>;
    EXPECT_EQ(
        activitySubject(Files{file("/in/x/a.png", "/in", false), file("/other/b.png", "/other", false)}),
        "a.png and 1 other");
    EXPECT_EQ(activitySubject(Files{file("/in/x/a.png", "/in", false), file("/in/b.png", "/in", false)}),
              "in");
    EXPECT_EQ(activitySubject(Files{file("/in/a.png", "/in", true)}), "a.png");
    EXPECT_EQ(activitySubject(Files(12, file("/in/a\xFF.png", "/in", true))), "a\uFFFD.png and 11 others");
    const auto time = timeOfISODate("2026-11-13T09:41:00Z");
    ASSERT_TRUE(time);
    EXPECT_EQ(isoDate(*time), "2026-11-13T09:41:00Z");
    for (const char* wrong : {"2026-11-13 09:41:00Z", "2026-13-13T09:41:00Z", "2026-11-13T0a:41:00Z", ""}) {
        EXPECT_FALSE(timeOfISODate(wrong)) << wrong;
    }
}

}  // namespace
}  // namespace tamble
