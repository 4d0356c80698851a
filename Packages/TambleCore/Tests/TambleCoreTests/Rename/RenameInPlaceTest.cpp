#include <TambleCore/Jobs/Journal/InterruptedJob.h>
#include <TambleCore/Jobs/Journal/JournalFile.h>
#include <TambleCore/Jobs/Renaming/RenameMoves.h>
#include <TambleCore/Rename/RenameExecutor.h>
#include <TambleCore/Rename/Renamer.h>
#include <TambleCore/Support/Log.h>

#include <TambleCoreTests/Jobs/KillingFileOperations.h>
#include <TambleCoreTests/Platform/MountedVolume.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using std::filesystem::path;
using testing::HasSubstr;

constexpr const char* nothingRenamed =
    "Nothing was renamed: a file couldn't be renamed (it may be open or locked), so all the old names were "
    "kept.";

/// A rotation of three, a swap, a change in letter case, a chain into a free name, one on its own, and one
/// that keeps its name.
class InPlace : public testing::Test {
  protected:
    InPlace() {
        for (const auto& [from, to] :
             {std::pair("a", "b"), std::pair("b", "c"), std::pair("c", "a"), std::pair("x/1", "2"),
              std::pair("x/2", "1"), std::pair("case", "CASE"), std::pair("d", "e"), std::pair("e", "f"),
              std::pair("not\xFFtext", "text"), std::pair("same", "same")}) {
            items.push_back(
                {.file = looseFile(folder.write(from, std::string("was ") + from)), .newName = to});
        }
        before = snapshot(folder.files());
    }

    path journalFile() const { return folder.home() / "ID.journal"; }
    std::shared_ptr<JournalFile> journal() const {
        return std::make_shared<JournalFile>(folder.home(), journal::Job{.id = "ID"});
    }

    /// What the folder holds when all have their new names.
    std::map<std::string, std::string> after() const {
        std::map<std::string, std::string> tree = before;
        for (const RenameItem& item : items) tree.erase(relative(item.file.url));
        for (const RenameItem& item : items)
            tree[relative(renamedPath(item))] = before.at(relative(item.file.url));
        return tree;
    }
    std::string relative(const path& file) const { return file.lexically_relative(folder.files()).native(); }

    void undo(std::vector<RenamedItem> renamed) {
        EXPECT_EQ(apply({.renamedItems = renamed}, fileOps),
                  (UndoReport{.restoredItems = static_cast<int>(renamed.size())}));
    }

    TestFolder folder;
    TestFileOperations fileOps;
    std::vector<RenameItem> items;
    std::map<std::string, std::string> before;
};

TEST_F(InPlace, SwapsAndRotatesAndIsUndone) {
    // As on a disk on which names that differ only in letter case are one.
    fileOps.before = [](const std::string&, const path& to) {
        for (const auto& entry : std::filesystem::directory_iterator(to.parent_path())) {
            if (pathKey(entry.path()) == pathKey(to)) throw TestFileOperations::fault(std::errc::file_exists);
        }
    };
    std::vector<double> told;
    const auto renamed =
        RenameExecutor::rename(items, fileOps, nullptr, [&](double fraction) { told.push_back(fraction); });
    EXPECT_EQ(renamed.size(), items.size() - 1);
    EXPECT_EQ(renamed.front(), (RenamedItem{items[0].file.url, items[1].file.url}));
    EXPECT_EQ(snapshot(folder.files()), after());
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_DOUBLE_EQ(told.back(), 1);
    undo(renamed);
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(InPlace, AFaultAtAnyMoveKeepsAllOldNames) {
    for (int faulty = 1;; ++faulty) {
        int calls = 0;
        std::string failed;
        fileOps.before = [&](const std::string&, const path& to) {
            if (++calls != faulty) return;
            failed = to.filename();
            throw TestFileOperations::fault(std::errc::permission_denied);
        };
        const LogCapture log;
        try {
            const auto renamed = RenameExecutor::rename(items, fileOps, journal().get());
            EXPECT_LT(calls, faulty);
            EXPECT_EQ(calls, 17) << "nine files, of which eight wait";
            EXPECT_EQ(snapshot(folder.files()), after());
            fileOps.before = {};
            undo(renamed);
            return;
        } catch (const RenameFailure& failure) {
            SCOPED_TRACE(fmt::format("move {}, to {}", faulty, failed));
            EXPECT_EQ(failure.sentence(), nothingRenamed);
            EXPECT_TRUE(failure.culprit);
            EXPECT_TRUE(failure.stranded.empty());
            EXPECT_THAT(log.text(), HasSubstr("Permission denied"));
        }
        ASSERT_EQ(snapshot(folder.files()), before);
        // Its program could die now, and the next start has nothing to do.
        const auto interrupted = InterruptedJob::read(journalFile());
        EXPECT_TRUE(interrupted->undo.isEmpty() && interrupted->unfinishedRenames.empty());
        std::filesystem::remove(journalFile());
    }
}

TEST_F(InPlace, AMoveThatHappenedAllTheSameCounts) {
    for (int faulty = 1; faulty <= 17; ++faulty) {
        int calls = 0;
        fileOps.after = [&] {
            if (++calls == faulty) throw TestFileOperations::fault();
        };
        undo(RenameExecutor::rename(items, fileOps, nullptr));
        ASSERT_EQ(snapshot(folder.files()), before);
    }
}

TEST_F(InPlace, ADiskThatDiesIsToldTrulyAndUndoneLater) {
    for (int faulty = 1; faulty <= 17; ++faulty) {
        SCOPED_TRACE(faulty);
        int calls = 0;
        fileOps.before = [&](const std::string&, const path&) {
            if (++calls >= faulty) throw TestFileOperations::fault();
        };
        std::vector<RenamedItem> stranded;
        try {
            RenameExecutor::rename(items, fileOps, nullptr);
            FAIL() << "it could not";
        } catch (const RenameFailure& failure) {
            stranded = failure.stranded;
        }
        EXPECT_EQ(stranded.empty(), faulty == 1);
        for (const RenamedItem& item : stranded) EXPECT_TRUE(std::filesystem::exists(item.to.path()));
        fileOps.before = {};
        undo(stranded);
        ASSERT_EQ(snapshot(folder.files()), before);
    }
}

TEST_F(InPlace, KilledAtAnyMoveTheNextStartHasAllOldNamesOrAllNewOnes) {
    for (const auto when : {KillingFileOperations::When::before, KillingFileOperations::When::after}) {
        for (int call = 1;; ++call) {
            SCOPED_TRACE(call);
            const bool isKilled = KillingFileOperations::kill(call, when, [&](const auto& killing) {
                RenameExecutor::rename(items, *killing, journal().get());
            });
            auto interrupted = InterruptedJob::read(journalFile());
            ASSERT_TRUE(interrupted);
            if (interrupted->unfinishedRenames.empty()) {
                EXPECT_EQ(snapshot(folder.files()), after());
                undo(interrupted->undo.renamedItems);
            }
            // The way back may be killed as well.
            for (int again = 1; !interrupted->unfinishedRenames.empty() && again <= 3; ++again) {
                KillingFileOperations::kill(2 * again, when, [&](const auto& killing) {
                    RenameMoves::resumed(reversed(interrupted->unfinishedRenames), *killing)
                        .run(RenameMoves::AfterProblem::goOn);
                });
            }
            auto back = RenameMoves::resumed(reversed(interrupted->unfinishedRenames), fileOps);
            EXPECT_EQ(back.run(RenameMoves::AfterProblem::goOn), nullptr);
            ASSERT_EQ(snapshot(folder.files()), before);
            std::filesystem::remove(journalFile());
            if (!isKilled) break;
            ASSERT_LT(call, 50);
        }
    }
}

TEST_F(InPlace, NothingIsTouchedThatCannotBeWrittenDown) {
    std::filesystem::remove_all(folder.home());
    folder.write("../home", "a file in the way of the journal's folder");
    try {
        RenameExecutor::rename(items, fileOps, journal().get());
        FAIL() << "it could not";
    } catch (const RenameFailure& failure) {
        EXPECT_THAT(failure.sentence(), HasSubstr("Couldn't write down what would be changed: "));
    }
    EXPECT_EQ(snapshot(folder.files()), before);
}

class Renaming : public testing::Test {
  protected:
    InputFile file(const std::string& name) const { return looseFile(folder.write(name, "was " + name)); }
    static JobResult rename(std::vector<InputFile> files, const RenamePattern& pattern) {
        return Renamer(pattern).renameInPlace(std::move(files), engineWith(), {}, {});
    }

    TestFolder folder;
};

TEST_F(Renaming, WaitsAsLongAsANameHasAProblem) {
    const std::vector<InputFile> files{file("a.txt"), file("b.txt"), file("c.png")};
    const auto before = snapshot(folder.files());
    const JobResult result = rename(files, {.base = rename_base::Text{"x"}});
    EXPECT_EQ(brief(result), "processing failed duplicate, processing failed duplicate, cancelled");
    EXPECT_EQ(std::get<outcome::Failed>(result.items[0].outcome).value.detail,
              "Two files would get this name");
    EXPECT_TRUE(result.undo.isEmpty());
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(Renaming, TellsWhatBecameOfEachFile) {
    const JobResult result =
        rename({file("a.txt"), file("A2.txt")}, {.letterCase = RenamePattern::LetterCase::upper});
    EXPECT_EQ(brief(result), "done A.txt, skipped sameName");
    EXPECT_EQ(namesIn(folder.files()), "A.txt|A2.txt");
    EXPECT_EQ(result.undo.renamedItems.size(), 1U);
    std::stop_source stop;
    stop.request_stop();
    const JobResult stopped =
        Renamer({.prefix = "x"}).renameInPlace({file("b.txt")}, engineWith(), {}, stop.get_token());
    EXPECT_TRUE(stopped.wasCancelled);
    EXPECT_EQ(brief(stopped), "cancelled");
    EXPECT_EQ(brief(rename({}, {})), "");
}

TEST_F(Renaming, AFolderThatMayNotBeChangedInTheMiddleKeepsAllNames) {
    MountedVolume volume(folder.files(), "size=1m,mode=0700", "locked");
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    volume.write("b.txt", "b");
    ASSERT_TRUE(volume.makeReadOnly());
    const std::vector<InputFile> files{file("a.txt"), looseFile(volume.top() / "b.txt"), file("c.txt")};
    const auto before = snapshot(folder.files());
    const JobResult result = rename(files, {.prefix = "new "});
    EXPECT_EQ(brief(result),
              "saving failed nothingRenamed, saving failed cannotRename, saving failed nothingRenamed");
    EXPECT_EQ(std::get<outcome::Failed>(result.items[2].outcome).value.detail, nothingRenamed);
    EXPECT_TRUE(result.undo.isEmpty());
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(Renaming, CopiesGetFreeNamesAndOnesThatCannotFailAlone) {
    std::vector<InputFile> files{file("a.txt"), file("b.txt"), file("not\xFFtext.txt")};
    const auto copies = [&](const RenamePattern& pattern) {
        return engineWith().run(files, *Renamer(pattern).copier(files),
                                {.location = location::ReplaceOriginals{}});
    };
    EXPECT_EQ(brief(copies({.base = rename_base::Text{"x"}})), "done x.txt, done x 2.txt, done x 3.txt");
    EXPECT_EQ(brief(copies({})), "done a 2.txt, done b 2.txt, done not\xFFtext 2.txt");
    EXPECT_EQ(contentOf(folder.files() / "a 2.txt"), "was a.txt");
    EXPECT_EQ(contentOf(folder.files() / "a.txt"), "was a.txt");
    const JobResult some = copies({.find = "a", .replaceWith = ""});
    EXPECT_EQ(brief(some), "processing failed empty, done b 3.txt, done not\xFFtext 3.txt");
}

}  // namespace
}  // namespace tamble
