#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Support/Failure.h>

#include <TambleCoreTests/Jobs/TestProcessors.h>

namespace tamble {
namespace {

using std::filesystem::path;

/// What may happen to a file, and what stands there afterwards.
struct Change {
    const char* name;
    void (*happen)(const path& file);
    const char* code;
    const char* sentence;
    const char* content;
};

void PrintTo(const Change& change, std::ostream* text) {
    *text << change.name;
}

constexpr const char* changed = "This file changed while it was being worked on.";
constexpr const char* missing = "This file is no longer there.";

const Change changes[] = {
    {"Grows", [](const path& file) { std::ofstream(file, std::ios::app) << "!"; }, "inputChanged", changed,
     "old!"},
    {"IsEmptied", [](const path& file) { std::ofstream(file, std::ios::trunc); }, "inputChanged", changed,
     ""},
    {"IsWrittenOver",
     [](const path& file) {
         const auto time = std::filesystem::last_write_time(file);
         std::ofstream(file) << "new";
         std::filesystem::last_write_time(file, time + std::chrono::microseconds(1));
     },
     "inputChanged", changed, "new"},
    {"IsReplaced",
     [](const path& file) {
         std::ofstream(file.parent_path() / "fresh") << "replaced";
         std::filesystem::rename(file.parent_path() / "fresh", file);
     },
     "inputChanged", changed, "replaced"},
    {"IsRemoved", [](const path& file) { std::filesystem::remove(file); }, "inputMissing", missing, ""},
};

const SaveLocation next = location::NextToOriginal{};
const SaveLocation replacing = location::ReplaceOriginals{};

/// An input that somebody else works on while the job does.
class ChangingInput : public testing::TestWithParam<Change> {
  protected:
    JobResult run(const SaveLocation& place, ClashPolicy policy = ClashPolicy::addNumber) {
        return engineWith(fileOps).run(files, processor,
                                       {.location = place, .clashPolicy = policy, .maxConcurrent = 1});
    }
    void happen() const { GetParam().happen(files.front().url); }
    /// The first item fails for the change, the other is saved, and the input is as the change left it.
    void expectFailure(const JobResult& result, const std::string& stage) const {
        EXPECT_EQ(brief(result), stage + " failed " + GetParam().code + ", done b.webp");
        EXPECT_EQ(std::get<outcome::Failed>(result.items.front().outcome).value.detail, GetParam().sentence);
        EXPECT_EQ(namesIn(folder.staging()), "");
        SystemFileOperations real;
        EXPECT_EQ(apply(result.undo, real).problems, 0);
        EXPECT_EQ(contentOf(files.front().url), GetParam().content);
        EXPECT_EQ(namesIn(folder.bin() / "files"), "");
    }

    TestFolder folder;
    std::vector<InputFile> files{looseFile(folder.write("a.webp", "old")),
                                 looseFile(folder.write("b.png", "b"))};
    std::shared_ptr<TestFileOperations> fileOps = std::make_shared<TestFileOperations>();
    TestProcessor processor;
};

TEST_P(ChangingInput, FailsWhenItChangesWhileItIsRead) {
    for (const SaveLocation& place : {next, replacing}) {
        for (const bool readerNotices : {false, true}) {
            files = {looseFile(folder.write("a.webp", "old")), looseFile(folder.write("b.png", "b"))};
            processor.work = [&](const InputFile& file, const path& destination, const WorkContext&) {
                std::ofstream(destination) << "made";
                if (file.url != files.front().url) return;
                happen();
                if (readerNotices) throw Failure("unreadable", "This picture can't be opened.");
            };
            expectFailure(run(place), "processing");
        }
    }
}

TEST_P(ChangingInput, IsNotReplacedWhenItChangesBeforeItIsSaved) {
    processor.work = [&](const InputFile& file, const path& destination, const WorkContext&) {
        std::filesystem::copy_file(file.url, destination);
        if (file.url != files.front().url) happen();
    };
    const JobResult beside = run(next);
    EXPECT_EQ(contentOf(std::get<outcome::Done>(beside.items.front().outcome).value), "old")
        << "what was read is saved";
    SystemFileOperations real;
    apply(beside.undo, real);
    folder.write("a.webp", "old");
    expectFailure(run(replacing), "saving");
}

TEST_P(ChangingInput, IsNotReplacedWhenItChangesRightBeforeTheBin) {
    files.front() = looseFile(folder.write("a.png", "old"));
    fileOps->before = [&](const std::string& step, const path& item) {
        if (step == "trash" && item.filename() == "a.webp") happen();
    };
    expectFailure(run(replacing, ClashPolicy::replace), "saving");
    EXPECT_EQ(contentOf(folder.files() / "a.webp"), "old") << "the file in the way is back as well";
}

TEST_P(ChangingInput, IsNotReplacedByWhatWasMadeOfAnEarlierStep) {
    files.front().originalURL = files.front().url;
    files.front().url = folder.write("step/intermediate.png", "old");
    processor.work = [&](const InputFile& file, const path& destination, const WorkContext&) {
        std::filesystem::copy_file(file.url, destination);
        if (file.url == files.front().url) GetParam().happen(*file.originalURL);
    };
    const JobResult result = run(replacing);
    EXPECT_EQ(brief(result), std::string("saving failed ") + GetParam().code + ", done b.webp");
    EXPECT_EQ(contentOf(*files.front().originalURL), GetParam().content);
}

TEST_P(ChangingInput, FailsACombinationByItsName) {
    struct Combiner final : FileCombiner {
        std::function<void()> happen;
        std::string fileExtension() const override { return "txt"; }
        std::string outputName(std::span<const InputFile>) const override { return "all.txt"; }
        void combine(std::span<const InputFile>, const path& destination, const WorkContext&) const override {
            std::ofstream(destination) << "all";
            happen();
        }
    } combiner;
    combiner.happen = [&] { happen(); };
    const JobResult result = engineWith().runCombined(files, combiner, {});
    const std::string end = std::string("processing failed ") + GetParam().code;
    EXPECT_EQ(brief(result), end + ", " + end);
    EXPECT_THAT(std::get<outcome::Failed>(result.items.back().outcome).value.detail,
                testing::StartsWith("“a.webp” "));
    EXPECT_FALSE(isThere(folder.files() / "all.txt"));
    EXPECT_EQ(namesIn(folder.staging()), "");
}

INSTANTIATE_TEST_SUITE_P(, ChangingInput, testing::ValuesIn(changes),
                         [](const auto& parameters) { return std::string(parameters.param.name); });

TEST(AnInputThatIsALink, IsTheFileItLeadsTo) {
    const TestFolder folder;
    folder.write("album/a.png", "a");
    std::filesystem::create_symlink("album/a.png", folder.files() / "link.png");
    const JobResult result = engineWith().run({looseFile(folder.files() / "link.png")},
                                              CopyThroughProcessor(), {.location = replacing});
    EXPECT_EQ(brief(result), "done link.png");
    EXPECT_FALSE(std::filesystem::is_symlink(folder.files() / "link.png"));
    SystemFileOperations real;
    EXPECT_EQ(apply(result.undo, real), (UndoReport{.removedOutputs = 1, .restoredItems = 1}));
    EXPECT_EQ(std::filesystem::read_symlink(folder.files() / "link.png"), "album/a.png");
}

}  // namespace
}  // namespace tamble
