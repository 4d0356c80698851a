#include <Tamble/Model/JobRecovery.h>

#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Jobs/Journal/JournalFile.h>
#include <TambleCore/Platform/SystemFileOperations.h>
#include <TambleCore/Rename/Renamer.h>

#include <TambleCoreTests/Jobs/KillingFileOperations.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

class Recovery : public testing::Test {
  protected:
    Recovery() {
        files.push_back({.url = folder.write("a.png", "old"), .root = folder.files(), .byteSize = 3});
    }
    std::vector<RecoveredJob> recover() {
        ActivityStore store(JobEngine{.fileOps = fileOps});
        return recoverInterruptedJobs(store, *fileOps);
    }
    /// Renames in a process that dies at that move, and answers whether it did.
    bool renameAndDie(int call) const {
        return KillingFileOperations::kill(
            call, KillingFileOperations::When::after, [&](const auto& killing) {
                const auto journal =
                    std::make_shared<JournalFile>(journalFolder(), startedJob("files.rename", files));
                const JobEngine engine{.fileOps = killing, .journal = journal};
                Renamer({.find = "a", .replaceWith = "x"}).renameInPlace(files, engine, {}, {});
            });
    }
    std::size_t entriesInLog() const {
        ActivityStore store(JobEngine{.fileOps = fileOps});
        store.load();
        return store.entries().size();
    }

    TestFolder folder;
    std::shared_ptr<FileOperations> fileOps = std::make_shared<SystemFileOperations>();
    std::vector<InputFile> files;
};

TEST_F(Recovery, AJobThatWasNotRememberedIsFoundOnce) {
    const auto before = snapshot(folder.files());
    const journal::Job job = startedJob("image.convert", files);
    auto running = std::make_shared<JournalFile>(journalFolder(), job);
    JobEngine{.fileOps = fileOps, .journal = running}.run(
        files, CopyThroughProcessor(), {.location = location::Folder{.value = folder.files() / "out"}});
    EXPECT_TRUE(recover().empty()) << "its program lives";

    running.reset();
    const auto jobs = recover();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].outcome, RecoveredJob::Outcome::logged);
    const std::vector<ActivityEntry> entries{jobs[0].entry};
    EXPECT_EQ(std::tuple(entries[0].id, entries[0].toolID, entries[0].subject),
              std::tuple(job.id, "image.convert", folder.files().filename().native()));
    EXPECT_EQ(std::tuple(entries[0].doneCount, entries[0].inputBytes, entries[0].outputBytes),
              std::tuple(1, 3, 3));
    EXPECT_TRUE(recover().empty());
    EXPECT_EQ(namesIn(journalFolder()), "");

    ActivityStore store(JobEngine{.fileOps = fileOps});
    store.load();
    EXPECT_EQ(store.undo(job.id), (UndoReport{.removedOutputs = 1}));
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(Recovery, AJobThatIsInTheLogAlreadyComesNoSecondTime) {
    const journal::Job job = startedJob("image.convert", files);
    auto journal = std::make_shared<JournalFile>(journalFolder(), job);
    const JobResult result =
        JobEngine{.fileOps = fileOps, .journal = journal}.run(files, CopyThroughProcessor(), {});
    ActivityStore(JobEngine{.fileOps = fileOps}).add(activityEntry(job, result));
    journal.reset();
    EXPECT_TRUE(recover().empty());
    EXPECT_EQ(entriesInLog(), 1U);
    EXPECT_EQ(namesIn(journalFolder()), "");
}

TEST_F(Recovery, FilesThatWereBeingRenamedGetTheirOldNamesBack) {
    files.push_back({.url = folder.write("ba", "old too"), .root = folder.files()});
    const auto before = snapshot(folder.files());
    ASSERT_TRUE(renameAndDie(1));
    EXPECT_NE(snapshot(folder.files()), before);
    const auto jobs = recover();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].outcome, RecoveredJob::Outcome::namesPutBack);
    EXPECT_EQ(snapshot(folder.files()), before);
    EXPECT_EQ(entriesInLog(), 0U);
    EXPECT_EQ(namesIn(journalFolder()), "");

    ASSERT_TRUE(renameAndDie(2));
    const auto renamed = recover();
    ASSERT_EQ(renamed.size(), 1U);
    EXPECT_EQ(renamed[0].outcome, RecoveredJob::Outcome::logged);
    EXPECT_EQ(std::tuple(renamed[0].entry.doneCount, namesIn(folder.files())), std::tuple(2, "bx|x.png"));
    ActivityStore store(JobEngine{.fileOps = fileOps});
    store.load();
    EXPECT_EQ(store.undo(renamed[0].entry.id), (UndoReport{.restoredItems = 2}));
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(Recovery, AnOldNameThatIsTakenByNowIsTriedAgain) {
    files.push_back({.url = folder.write("ba", "old too"), .root = folder.files()});
    ASSERT_TRUE(renameAndDie(1));
    folder.write("a.png", "somebody else's");
    const auto jobs = recover();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].outcome, RecoveredJob::Outcome::namesNotBack);
    EXPECT_EQ(jobs[0].stranded, std::vector<FilePath>{folder.files() / "x.png"});
    EXPECT_EQ(contentOf(folder.files() / "a.png"), "somebody else's");
    std::filesystem::remove(folder.files() / "a.png");
    EXPECT_EQ(recover().at(0).outcome, RecoveredJob::Outcome::namesPutBack);
    EXPECT_EQ(contentOf(folder.files() / "a.png"), "old");
}

TEST_F(Recovery, WhatIsNoJournalHarmsNothing) {
    std::filesystem::create_directories(journalFolder());
    std::ofstream(journalFolder() / "empty.journal") << "";
    std::ofstream(journalFolder() / "odd.journal")
        << "\n{\"begun\":{}}\n{\"created\":{\"_0\":7}}\n\xFF\n[[[[";
    std::ofstream(journalFolder() / "note.txt") << "mine";
    EXPECT_TRUE(recover().empty());
    EXPECT_EQ(namesIn(journalFolder()), "note.txt");
    EXPECT_EQ(entriesInLog(), 0U);
}

TEST_F(Recovery, AJobThatCannotBeLoggedIsKeptForTheNextStart) {
    auto journal = std::make_shared<JournalFile>(journalFolder(), startedJob("image.convert", files));
    JobEngine{.fileOps = fileOps, .journal = journal}.run(files, CopyThroughProcessor(), {});
    journal.reset();
    // A folder in the place of the lock stops everybody, whoever runs the test.
    const auto lock = ActivityStore::defaultFile().native() + ".change.lock";
    std::filesystem::create_directory(lock);
    EXPECT_TRUE(recover().empty());
    std::filesystem::remove(lock);
    EXPECT_EQ(recover().size(), 1U);
}

}  // namespace
}  // namespace tamble
