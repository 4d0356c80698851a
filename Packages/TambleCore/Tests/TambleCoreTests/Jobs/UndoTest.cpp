#include <TambleCore/Jobs/FolderSummary.h>
#include <TambleCore/Support/Log.h>

#include <chrono>
#include <set>

#include <TambleCoreTests/Jobs/KillingFileOperations.h>

namespace tamble {
namespace {

using std::filesystem::path;

class Undoing : public testing::Test {
  protected:
    UndoRecord created(const path& output) const {
        return {.createdFiles = {output},
                .createdFingerprints = {{fingerprintKey(output), *FileFingerprint::of(output)}}};
    }

    TestFolder folder;
    TestFileOperations fileOps;
};

TEST_F(Undoing, KeepsWhatChangedAndForgivesSmallDifferencesOfTime) {
    for (const auto& [micros, size, isKept] :
         {std::tuple(500, 3, false), std::tuple(2000, 3, true), std::tuple(0, 4, true)}) {
        const path output = folder.write("out.webp", "abc");
        const UndoRecord record = created(output);
        const auto time = std::filesystem::last_write_time(output);
        if (size == 4) folder.write("out.webp", "abcd");
        std::filesystem::last_write_time(output, time + std::chrono::microseconds(micros));
        const LogCapture log;
        EXPECT_EQ(apply(record, fileOps),
                  (UndoReport{.removedOutputs = isKept ? 0 : 1, .keptBecauseChanged = isKept ? 1 : 0}));
        EXPECT_EQ(std::filesystem::exists(output), isKept);
        EXPECT_EQ(log.text().find("engine: Undo kept a file that changed after the job\n") == 0, isKept);
    }
}

TEST_F(Undoing, GoesOnAfterEveryProblem) {
    const path output = folder.write("a.webp", "new");
    const path lost = folder.write("lost.png", "old"), kept = folder.write("kept.png", "old");
    UndoRecord record = created(output);
    record.trashedItems = {{lost, fileOps.trash(lost)}, {kept, fileOps.trash(kept)}};
    std::filesystem::remove(record.trashedItems[0].inTrash);
    record.createdFiles.push_back(folder.files() / "gone already.webp");
    const LogCapture log;
    EXPECT_EQ(apply(record, fileOps), (UndoReport{.removedOutputs = 1, .restoredItems = 1, .problems = 1}));
    EXPECT_EQ(namesIn(folder.files()), "kept.png");
    EXPECT_EQ(log.text(), "engine: Undo: 1 outputs removed, 1 restored, 0 kept (changed), 1 problems\n");
}

TEST_F(Undoing, AnOriginalNeverOverwritesAKeptOutput) {
    const path original = folder.write("a.webp", "old");
    TestProcessor processor;
    const JobResult result =
        engineWith().run({looseFile(original)}, processor, {.location = location::ReplaceOriginals{}});
    folder.write("a.webp", "changed since");
    EXPECT_EQ(apply(result.undo, fileOps), (UndoReport{.problems = 1, .keptBecauseChanged = 1}));
    EXPECT_EQ(contentOf(original), "changed since");
    EXPECT_EQ(contentOf(result.undo.trashedItems.front().inTrash), "old");
}

TEST_F(Undoing, PutsOriginalsBackIntoFoldersThatWentAway) {
    const path original = folder.write("Rome/a.png", "old");
    const UndoRecord record{.trashedItems = {{original, fileOps.trash(original)}}};
    std::filesystem::remove(original.parent_path());
    EXPECT_EQ(apply(record, fileOps), (UndoReport{.restoredItems = 1}));
    EXPECT_EQ(contentOf(original), "old");
}

TEST_F(Undoing, SwapsNamesBack) {
    const path a = folder.write("a.txt", "was b"), b = folder.write("b.txt", "was a");
    const UndoRecord record{.renamedItems = {{a, b}, {b, a}}};
    EXPECT_EQ(apply(record, fileOps), (UndoReport{.restoredItems = 2}));
    EXPECT_EQ(contentOf(a) + contentOf(b),
              "was a"
              "was b");

    fileOps.before = [&](const std::string&, const path& to) {
        if (to == b) throw TestFileOperations::fault();
    };
    const LogCapture log;
    EXPECT_EQ(apply(record, fileOps), (UndoReport{.restoredItems = 1, .problems = 1}));
    EXPECT_THAT(namesIn(folder.files()), testing::MatchesRegex("\\.tamble-undo-[0-9A-F-]{36}\\|a\\.txt"));
    EXPECT_THAT(log.text(),
                testing::HasSubstr("Undo couldn't put a renamed file back; it is at a temporary name in "
                                   "its folder\n"));
}

TEST_F(Undoing, AFaultAtAnyStepKeepsEveryRenamedFile) {
    const path a = folder.files() / "a.txt", b = folder.files() / "b.txt", c = folder.files() / "c.txt";
    const UndoRecord record{.renamedItems = {{a, b}, {b, a}, {folder.files() / "old.txt", c}}};
    for (int faulty = 1;; ++faulty) {
        folder.write("a.txt", "1");
        folder.write("b.txt", "2");
        folder.write("c.txt", "3");
        int steps = 0;
        fileOps.before = [&](const std::string&, const path&) {
            if (++steps == faulty) throw TestFileOperations::fault();
        };
        const UndoReport report = apply(record, fileOps);
        std::multiset<std::string> contents;
        for (const auto& entry : std::filesystem::directory_iterator(folder.files())) {
            contents.insert(contentOf(entry.path()));
        }
        EXPECT_THAT(contents, testing::ElementsAre("1", "2", "3"));
        EXPECT_EQ(report.problems > 0, steps >= faulty);
        EXPECT_EQ(report.restoredItems + report.problems, 3);
        std::filesystem::remove_all(folder.files());
        if (steps < faulty) break;
    }
}

TEST_F(Undoing, OfRenamesThatWasKilledAtAnyMoveEndsWithTheOldNames) {
    // A rotation, a swap, a chain and one on its own.
    std::vector<RenamedItem> items;
    for (const auto& [from, to] :
         {std::pair("a", "b"), std::pair("b", "c"), std::pair("c", "a"), std::pair("d", "e"),
          std::pair("e", "d"), std::pair("f", "g"), std::pair("g", "h"), std::pair("i", "j")}) {
        items.push_back({folder.files() / from, folder.files() / to});
    }
    const UndoRecord record{.renamedItems = items};
    for (const auto when : {KillingFileOperations::When::before, KillingFileOperations::When::after}) {
        for (int call = 1;; ++call) {
            SCOPED_TRACE(call);
            for (const auto& item : items)
                folder.write(item.to.filename(), "was " + item.from.filename().native());
            const auto wayBack = plannedWayBack(record);
            const bool isKilled = KillingFileOperations::kill(
                call, when, [&](const auto& killing) { apply(record, wayBack, *killing); });
            if (isKilled) {
                EXPECT_EQ(resume(record, wayBack, fileOps), (UndoReport{.restoredItems = 8}));
            }
            for (const auto& item : items)
                ASSERT_EQ(contentOf(item.from), "was " + item.from.filename().native());
            EXPECT_EQ(namesIn(folder.files()), "a|b|c|d|e|f|g|i");
            std::filesystem::remove_all(folder.files());
            if (!isKilled) break;
            ASSERT_LT(call, 50);
        }
    }
}

TEST_F(Undoing, LeavesFoldersThatAreInUse) {
    const path output = folder.write("out/deep/a.webp", "new");
    UndoRecord record = created(output);
    record.createdFolders = {folder.files() / "out", folder.files() / "out/deep"};
    folder.write("out/mine.txt", "mine");
    EXPECT_EQ(apply(record, fileOps), (UndoReport{.removedOutputs = 1}));
    EXPECT_EQ(namesIn(folder.files() / "out"), "mine.txt");
}

TEST(FolderSummaries, CountByFolder) {
    const auto item = [](const char* file, const char* relative, bool isLoose, ItemOutcome itemOutcome) {
        return ItemResult{{.url = file, .root = "/in", .relativeFolder = relative, .isLoose = isLoose},
                          std::move(itemOutcome)};
    };
    const std::vector<ItemResult> items{
        item("/in/a.png", "", false, outcome::Done{}),
        item("/in/x/y/b.png", "x/y", false, outcome::Skipped{skip::AlreadyInFormat{"WebP"}}),
        item("/in/x/y/c.png", "x/y", false, outcome::Skipped{skip::NameTaken{}}),
        item("/in/x/y/d.png", "x/y", false, outcome::Failed{}),
        item("/in/e.png", "", true, outcome::Cancelled{}),
    };
    std::string rows;
    for (const FolderSummary& row : folderSummaries(items)) {
        rows += fmt::format("{} at {}: {} = {} + {} ({}) + {}\n", row.name.value_or("loose"), row.depth,
                            row.total, row.done, row.skipped, row.alreadyInFormat, row.failed);
    }
    EXPECT_EQ(rows, "in at 0: 1 = 1 + 0 (0) + 0\ny at 2: 3 = 0 + 2 (1) + 1\nloose at 0: 1 = 0 + 0 (0) + 0\n");
}

}  // namespace
}  // namespace tamble
