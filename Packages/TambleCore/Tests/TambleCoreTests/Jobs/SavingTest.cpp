#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>

#include <TambleCoreTests/Jobs/TestProcessors.h>
#include <unistd.h>

namespace tamble {
namespace {

using std::filesystem::path;

class Saving : public testing::Test {
  protected:
    JobResult run(const std::vector<InputFile>& files, JobConfiguration configuration) const {
        configuration.maxConcurrent = 2;
        return JobEngine{.fileOps = fileOps, .journal = journal}.run(files, processor, configuration);
    }
    JobResult replace(const std::vector<InputFile>& files,
                      ClashPolicy policy = ClashPolicy::addNumber) const {
        return run(files, {.location = location::ReplaceOriginals{}, .clashPolicy = policy});
    }
    InputFile file(const std::string& name) const {
        return looseFile(folder.write(name, fmt::format("old {}", name)));
    }
    std::string names() const { return namesIn(folder.files()); }
    UndoReport undo(const JobResult& result) const {
        SystemFileOperations real;
        return apply(result.undo, real);
    }

    TestFolder folder;
    std::shared_ptr<TestFileOperations> fileOps = std::make_shared<TestFileOperations>();
    std::shared_ptr<JobJournal> journal;
    TestProcessor processor;
};

TEST_F(Saving, PoliciesHoldForNamesThatDifferInCase) {
    const InputFile input = file("photo.png");
    folder.write("Photo.WEBP", "mine");
    const auto before = snapshot(folder.files());
    EXPECT_EQ(brief(run({input}, {.clashPolicy = ClashPolicy::skip})), "skipped nameTaken");
    EXPECT_EQ(snapshot(folder.files()), before);

    const JobResult numbered = run({input}, {.clashPolicy = ClashPolicy::addNumber});
    EXPECT_EQ(brief(numbered), "done photo 2.webp");
    undo(numbered);

    const JobResult replaced = run({input}, {.clashPolicy = ClashPolicy::replace});
    EXPECT_EQ(brief(replaced), "done photo.webp");
    EXPECT_EQ(names(), "photo.png|photo.webp");
    EXPECT_EQ(undo(replaced), (UndoReport{.removedOutputs = 1, .restoredItems = 1}));
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(Saving, OutputsOfOneJobNeverTakeOneName) {
    const std::vector<InputFile> files{file("a/Beach.PNG"), file("b/beach.png"), file("c/beach.png")};
    const JobConfiguration into{.location = location::Folder{.value = folder.files() / "out/today"},
                                .clashPolicy = ClashPolicy::replace};
    const auto before = snapshot(folder.files());
    const JobResult result = run(files, into);
    EXPECT_EQ(brief(result), "done Beach.webp, done beach 2.webp, done beach 3.webp");
    EXPECT_EQ(undo(result), (UndoReport{.removedOutputs = 3}));
    EXPECT_EQ(snapshot(folder.files()), before) << "folders the job made are gone as well";
}

TEST_F(Saving, ReplacingTakesTheOriginalsPlace) {
    const std::vector<InputFile> files{file("same.webp"), file("other.png")};
    const auto before = snapshot(folder.files());
    const JobResult result = replace(files);
    EXPECT_EQ(brief(result), "done same.webp, done other.webp");
    EXPECT_EQ(names(), "other.webp|same.webp");
    EXPECT_EQ(contentOf(folder.files() / "same.webp"), "made of old same.webp");
    EXPECT_EQ(result.undo.trashedItems.size(), 2U);
    EXPECT_EQ(undo(result), (UndoReport{.removedOutputs = 2, .restoredItems = 2}));
    EXPECT_EQ(snapshot(folder.files()), before);
    EXPECT_EQ(namesIn(folder.bin() / "files") + namesIn(folder.bin() / "info"), "");
}

TEST_F(Saving, AToolThatMustNotReplaceSavesBeside) {
    processor.mayReplace = false;
    const InputFile input = file("a.webp");
    const LogCapture log;
    EXPECT_EQ(brief(replace({input}, ClashPolicy::replace)), "done a 2.webp") << "not even by way of a clash";
    EXPECT_EQ(contentOf(input.url), "old a.webp");
    EXPECT_THAT(log.text(),
                testing::StartsWith("engine: This tool never replaces originals; saving next to them "
                                    "instead\n"));
}

TEST_F(Saving, InputsThatMeetInOneNameLoseNothing) {
    // Every order, with every policy: two pictures of one name, one whose output's name is another input, one
    // twice.
    std::vector<InputFile> files{file("a.png"), file("a.jpg"), file("a.webp"), file("b.webp")};
    files.push_back(files.front());
    const auto before = snapshot(folder.files());
    std::vector<std::size_t> order{0, 1, 2, 3, 4};
    do {
        std::vector<InputFile> ordered;
        for (const std::size_t index : order) ordered.push_back(files[index]);
        for (const ClashPolicy policy : {ClashPolicy::addNumber, ClashPolicy::skip, ClashPolicy::replace}) {
            const JobResult result = replace(ordered, policy);
            SCOPED_TRACE(brief(result));
            const UndoReport report = undo(result);
            EXPECT_EQ(report.problems + report.keptBecauseChanged, 0);
            ASSERT_EQ(snapshot(folder.files()), before);
        }
    } while (std::ranges::next_permutation(order).found && order.front() < 3);
}

TEST_F(Saving, AFolderIsOneOutput) {
    processor.name = [](const InputFile& input) { return FileNames::stem(input.url) + "/"; };
    processor.work = [](const InputFile& input, const path& destination, const WorkContext&) {
        std::filesystem::create_directories(destination / "inner");
        std::ofstream(destination / "inner/page.png") << contentOf(input.url);
    };
    const std::vector<InputFile> files{file("a.pdf"), file("a/b.pdf"), file("c.pdf")};
    folder.write("c/mine.txt", "mine");
    const auto before = snapshot(folder.files());
    const JobResult result = run(files, {.clashPolicy = ClashPolicy::replace});
    EXPECT_EQ(brief(result), "done a 2/, done b/, done c/") << "a folder that holds an input does not leave";
    EXPECT_EQ(names(), "a|a 2|a.pdf|c|c.pdf");
    EXPECT_EQ(undo(result), (UndoReport{.removedOutputs = 3, .restoredItems = 1}));
    EXPECT_EQ(snapshot(folder.files()), before);

    const JobResult again = run({files[0]}, {});
    folder.write("a 2/inner/page.png", "changed since");
    EXPECT_EQ(undo(again), (UndoReport{.keptBecauseChanged = 1}));
    EXPECT_EQ(contentOf(folder.files() / "a 2/inner/page.png"), "changed since");
}

TEST_F(Saving, WithoutABinNothingIsReplaced) {
    fileOps->hasBin = false;
    const std::vector<InputFile> files{file("same.webp"), file("other.png")};
    const LogCapture log;
    EXPECT_EQ(brief(replace(files)), "done same 2.webp originalKeptNoBin, done other.webp originalKeptNoBin");
    EXPECT_EQ(names(), "other.png|other.webp|same 2.webp|same.webp");
    EXPECT_EQ(brief(run({files[1]}, {.clashPolicy = ClashPolicy::replace})),
              "done other 2.webp existingKeptNoBin");
    EXPECT_EQ(contentOf(folder.files() / "other.webp"), "made of old other.png");
    for (const char* line : {"Original couldn't go to the Bin; keeping it\n",
                             "Original couldn't go to the Bin; keeping it and saving beside it\n",
                             "Existing file couldn't go to the Bin; saving with a number instead\n"}) {
        EXPECT_THAT(log.text(), testing::HasSubstr(line));
    }
}

TEST_F(Saving, AFailedSavePutsTheOriginalBack) {
    const InputFile input = file("a.png");
    const auto before = snapshot(folder.files());
    bool canRestore = true;
    fileOps->before = [&](const std::string& step, const path& to) {
        if (step != "move") return;
        if (to.filename() == "a.webp" || !canRestore)
            throw TestFileOperations::fault(std::errc::no_space_on_device);
    };
    const JobResult failed = replace({input});
    EXPECT_EQ(brief(failed), "saving failed cannotSave");
    EXPECT_EQ(std::get<outcome::Failed>(failed.items[0].outcome).value.detail, "No space left on device");
    EXPECT_TRUE(failed.undo.isEmpty());
    EXPECT_EQ(snapshot(folder.files()), before);

    canRestore = false;
    const LogCapture log;
    const JobResult stranded = replace({input});
    EXPECT_EQ(brief(stranded), "saving failed cannotSaveOriginalInBin");
    EXPECT_THAT(log.text(),
                testing::HasSubstr("Couldn't restore original from the Bin after a failed save: No space"));
    EXPECT_EQ(undo(stranded), (UndoReport{.restoredItems = 1})) << "the record still knows where it is";
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(Saving, ANameTakenMeanwhileIsNeverOverwritten) {
    const InputFile input = file("a.png");
    for (const ClashPolicy policy : {ClashPolicy::addNumber, ClashPolicy::skip, ClashPolicy::replace}) {
        fileOps->before = [&](const std::string& step, const path& to) {
            if (step == "move" && to.filename() == "a.webp") folder.write("a.webp", "somebody's");
        };
        const JobResult result = replace({input}, policy);
        EXPECT_EQ(brief(result), policy == ClashPolicy::skip ? "skipped nameTaken" : "done a 2.webp");
        EXPECT_EQ(contentOf(folder.files() / "a.webp"), "somebody's");
        EXPECT_EQ(contentOf(input.url), policy == ClashPolicy::skip ? "old a.png" : "");
        undo(result);
        std::filesystem::remove(folder.files() / "a.webp");
        EXPECT_EQ(names(), "a.png");
    }
}

TEST_F(Saving, ProblemsOfFoldersAreOutcomes) {
    const InputFile input = file("a.png");
    const path blocked = folder.write("blocked", "a file");
    EXPECT_EQ(brief(run({input}, {.location = location::Folder{.value = blocked / "out"}})),
              "saving failed cannotCreateFolder");
    // Neither caches nor temporary folder take a staging folder.
    ::setenv("XDG_CACHE_HOME", (blocked / "caches").c_str(), 1);
    ::setenv("TMPDIR",
             folder.write("tmp/tamble-staging-" + std::to_string(::getuid()), "").parent_path().c_str(), 1);
    const LogCapture log;
    const JobResult result = run({input}, {});
    ::unsetenv("TMPDIR");
    EXPECT_EQ(brief(result), "processing failed cannotCreateFolder");
    EXPECT_EQ(std::get<outcome::Failed>(result.items[0].outcome).value.detail, "No staging folder");
    EXPECT_THAT(log.text(), testing::HasSubstr("Couldn't create staging folder: "));
}

TEST_F(Saving, ThePlanIsWhatHappens) {
    folder.write("out/b.webp", "mine");
    const std::vector<InputFile> files{file("x/a.png"), file("y/A.png"), file("b.png")};
    const JobConfiguration into{.location = location::Folder{.value = folder.files() / "out"},
                                .clashPolicy = ClashPolicy::skip};
    const auto before = snapshot(folder.files());
    const JobPlan plan = engineWith().plan(files, processor, into);
    EXPECT_EQ(snapshot(folder.files()), before);
    const JobResult result = run(files, into);
    ASSERT_EQ(plan.items.size(), 3U);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(std::get<Placement>(plan.items[i]).target,
                  std::get<outcome::Done>(result.items[i].outcome).value);
    }
    EXPECT_EQ(std::get<outcome::Skipped>(plan.items[2]), std::get<outcome::Skipped>(result.items[2].outcome));
}

/// Writes down what it is told, one word or two a message.
class TestJournal final : public JobJournal {
  public:
    std::string told;
    bool refuses = false;

    void willSave(const PlannedSave& save) override {
        if (refuses) throw TestFileOperations::fault(std::errc::no_space_on_device);
        EXPECT_TRUE(std::filesystem::exists(save.staged));
        say("plan", save.placement.target);
    }
    void willBeginSaving() override { say("begin"); }
    void didCreateFolder(const path& made) override { say("folder", made); }
    void didTrash(const TrashedItem& item) override { say("trash", item.original); }
    void didPutBack(const TrashedItem& item) override { say("back", item.original); }
    void didCreate(const path& output, const FileFingerprint&) override { say("create", output); }
    void willRename(const PlannedRename& rename) override { say("rename", rename.to); }
    void didRenameAll() override { say("renamed"); }
    void didKeepAllNames() override { say("kept"); }

  private:
    void say(const char* what, const path& item = {}) {
        told += fmt::format("{}{}{}{}", told.empty() ? "" : ", ", what, item.empty() ? "" : " ",
                            item.filename().native());
    }
};

TEST_F(Saving, TheJournalHearsThePlanFirst) {
    const auto hearing = std::make_shared<TestJournal>();
    journal = hearing;
    fileOps->before = [&](const std::string& step, const path& item) {
        EXPECT_THAT(hearing->told, testing::HasSubstr("begin"));
        if (step == "move" && item.filename() == "b.webp") throw TestFileOperations::fault();
    };
    replace({file("a.png"), file("b.png")});
    EXPECT_EQ(hearing->told,
              "plan a.webp, plan b.webp, begin, trash a.png, create a.webp, trash b.png, back b.png");

    hearing->refuses = true;
    const auto before = snapshot(folder.files());
    EXPECT_EQ(brief(replace({file("c.png")})), "saving failed cannotSave");
    std::filesystem::remove(folder.files() / "c.png");
    EXPECT_EQ(snapshot(folder.files()), before);
}

}  // namespace
}  // namespace tamble
