#include <TambleCore/Jobs/Journal/InterruptedJob.h>
#include <TambleCore/Jobs/Journal/JournalFile.h>

#include <TambleCoreTests/Jobs/KillingFileOperations.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using std::filesystem::path;

class Journal : public testing::Test {
  protected:
    Journal() {
        processor.keepsTime = true;
        for (const char* name :
             {"same.webp", "other.png", "deep/er/not\xFFtext.png", "refused.png", "-\n[0]"}) {
            files.push_back(looseFile(folder.write(name, fmt::format("old {}", name))));
        }
        folder.write("other.webp", "in the way");
    }

    path journalFolder() const { return folder.home() / "journal"; }
    path journalFile() const { return journalFolder() / "ID.journal"; }
    journal::Job job() const {
        const std::chrono::duration<double> now = std::chrono::system_clock::now().time_since_epoch();
        return {.id = "ID", .toolID = "image.convert", .subject = "pictures", .started = now.count()};
    }

    JobResult run(std::shared_ptr<FileOperations> fileOps, const JobConfiguration& configuration) const {
        return JobEngine{.fileOps = std::move(fileOps),
                         .journal = std::make_shared<JournalFile>(journalFolder(), job())}
            .run(files, processor, configuration);
    }

    /// Runs the job in a process of its own and answers whether it was killed.
    bool isKilled(int call, KillingFileOperations::When when, const JobConfiguration& configuration) const {
        return KillingFileOperations::kill(
            call, when, [&](std::shared_ptr<FileOperations> killing) { run(killing, configuration); });
    }

    TestFolder folder;
    TestProcessor processor;
    std::vector<InputFile> files;
};

TEST_F(Journal, AJobKilledAtAnyStepIsTakenBackToTheByte) {
    const auto before = snapshot(folder.files());
    const path into = folder.files() / "new/folder";
    for (const JobConfiguration& configuration :
         {JobConfiguration{.location = location::ReplaceOriginals{}, .clashPolicy = ClashPolicy::replace},
          JobConfiguration{.location = location::ReplaceOriginals{}},
          JobConfiguration{.location = location::Folder{.value = into}},
          JobConfiguration{.clashPolicy = ClashPolicy::replace}}) {
        for (const auto when : {KillingFileOperations::When::before, KillingFileOperations::When::after}) {
            int call = 1;
            while (isKilled(call, when, configuration)) {
                SCOPED_TRACE(fmt::format("call {}, {}", call, when == KillingFileOperations::When::after));
                const auto interrupted = InterruptedJob::read(journalFile());
                ASSERT_TRUE(interrupted);
                EXPECT_EQ(interrupted->job.toolID, "image.convert");
                SystemFileOperations real;
                const UndoReport report = apply(interrupted->undo, real);
                EXPECT_EQ(report.problems + report.keptBecauseChanged, 0);
                if (configuration.location.index() == SaveLocation(location::Folder{}).index()) {
                    // The folders of a call that was not heard of stay.
                    std::filesystem::remove(into);
                    std::filesystem::remove(into.parent_path());
                }
                ASSERT_EQ(snapshot(folder.files()), before);
                ASSERT_EQ(namesIn(folder.bin() / "files"), "");
                std::filesystem::remove(journalFile());
                ++call;
            }
            EXPECT_GE(call, 5);
            const auto complete = InterruptedJob::read(journalFile());
            SystemFileOperations real;
            apply(complete.value().undo, real);
            ASSERT_EQ(snapshot(folder.files()), before);
            std::filesystem::remove(journalFile());
        }
    }
}

TEST_F(Journal, WhatAPowerCutTakesOfItIsFoundOnTheDisk) {
    const JobConfiguration configuration{.location = location::ReplaceOriginals{},
                                         .clashPolicy = ClashPolicy::replace};
    const UndoRecord whole = run(std::make_shared<SystemFileOperations>(), configuration).undo;
    ASSERT_EQ(whole.trashedItems.size(), 6U);
    const std::string text = contentOf(journalFile());
    const std::size_t begun = text.find("begun");
    ASSERT_NE(begun, std::string::npos);
    const auto sorted = [](const UndoRecord& record) {
        std::vector<std::string> changes;
        for (const auto& [key, fingerprint] : record.createdFingerprints) {
            changes.push_back(fmt::format("{} {} {}", key.native(), fingerprint.size, fingerprint.modified));
        }
        for (const auto& item : record.trashedItems) changes.push_back(writeJson(encodeJson(item)));
        for (const auto& output : record.createdFiles) changes.push_back(output.native());
        std::ranges::sort(changes);
        return changes;
    };
    for (std::size_t length = text.size(); length > begun; length -= 7) {
        std::ofstream(journalFile(), std::ios::binary) << text.substr(0, length);
        const auto interrupted = InterruptedJob::read(journalFile());
        if (!interrupted) {
            EXPECT_LT(length, text.find('\n', begun)) << "only a plan that is not complete counts as nothing";
            continue;
        }
        ASSERT_EQ(sorted(interrupted->undo), sorted(whole)) << length;
    }
}

TEST_F(Journal, OfAJobThatIsRememberedNothingStays) {
    JournalFile journal(journalFolder(), job());
    EXPECT_FALSE(std::filesystem::exists(journalFile())) << "nothing is written for nothing";
    journal.willSave({.staged = files[0].url, .placement = {.target = files[0].url}});
    EXPECT_EQ(FileLock::tryTake(journalFile()).has_value(), false);
    journal.forget();
    EXPECT_EQ(namesIn(journalFolder()), "");
}

TEST_F(Journal, AnUndoThatWasKilledIsGoneOnWith) {
    // The outputs are of the originals' very size and time: only the Bin tells them apart.
    processor.extension = "png";
    processor.work = [](const InputFile& file, const path& destination, const WorkContext&) {
        std::ofstream(destination, std::ios::binary) << std::string(contentOf(file.url).size(), 'x');
    };
    const auto before = snapshot(folder.files());
    const JobConfiguration configuration{.location = location::ReplaceOriginals{}};
    for (const auto when : {KillingFileOperations::When::before, KillingFileOperations::When::after}) {
        for (int call = 1;; ++call) {
            SCOPED_TRACE(call);
            const UndoRecord record = run(std::make_shared<SystemFileOperations>(), configuration).undo;
            std::filesystem::remove(journalFile());
            const bool isKilled = KillingFileOperations::kill(
                call, when, [&](const auto& killing) { apply(record, *killing); });
            SystemFileOperations real;
            EXPECT_EQ(isKilled ? resume(record, {}, real).problems : 0, 0);
            ASSERT_EQ(snapshot(folder.files()), before);
            if (!isKilled) break;
            ASSERT_LT(call, 50);
        }
    }
}

}  // namespace
}  // namespace tamble
