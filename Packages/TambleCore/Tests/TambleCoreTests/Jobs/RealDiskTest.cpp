#include <TambleCore/Jobs/CopyThroughProcessor.h>

#include <TambleCoreTests/Jobs/TestProcessors.h>
#include <TambleCoreTests/Platform/MountedVolume.h>
#include <unistd.h>

namespace tamble {
namespace {

using std::filesystem::path;

/// Jobs on disks that are full, cannot be written, have no Bin or go away.
class RealDisks : public testing::Test {
  protected:
    JobResult replace(const std::vector<InputFile>& files,
                      ClashPolicy policy = ClashPolicy::addNumber) const {
        return engineWith(fileOps).run(
            files, processor,
            {.location = location::ReplaceOriginals{}, .clashPolicy = policy, .maxConcurrent = 1});
    }
    JobResult into(const path& destination, const std::vector<InputFile>& files) const {
        return engineWith(fileOps).run(
            files, processor, {.location = location::Folder{.value = destination}, .maxConcurrent = 1});
    }
    UndoReport undo(const JobResult& result) const {
        SystemFileOperations real;
        return apply(result.undo, real);
    }
    static std::string detail(const JobResult& result, std::size_t index = 0) {
        return std::get<outcome::Failed>(result.items.at(index).outcome).value.detail;
    }
    static std::string ownBin() { return ".Trash-" + std::to_string(::getuid()); }

    TestFolder folder;
    std::shared_ptr<TestFileOperations> fileOps = std::make_shared<TestFileOperations>();
    TestProcessor processor;
};

TEST_F(RealDisks, FullWhileAnOutputIsMade) {
    const MountedVolume volume(folder.files(), "size=256k");
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const std::vector<InputFile> files{looseFile(volume.write("big.png", std::string(150'000, 'b'))),
                                       looseFile(volume.write("small.png", "small"))};
    const auto before = snapshot(volume.top());
    for (const SaveLocation& place :
         {SaveLocation(location::NextToOriginal{}), SaveLocation(location::ReplaceOriginals{})}) {
        const JobResult result =
            engineWith().run(files, CopyThroughProcessor(), {.location = place, .maxConcurrent = 1});
        EXPECT_THAT(brief(result), testing::StartsWith("processing failed unexpected, done small"));
        EXPECT_THAT(detail(result), testing::HasSubstr("No space left on device"));
        EXPECT_EQ(undo(result).problems, 0);
        std::filesystem::remove_all(volume.top() / ownBin());
        EXPECT_EQ(snapshot(volume.top()), before) << "no staging is left";
    }
}

TEST_F(RealDisks, FullWhenTheOriginalIsToGoToTheBin) {
    const MountedVolume volume(folder.files(), "size=64k");
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const std::vector<InputFile> files{looseFile(volume.write("a.webp", "a")),
                                       looseFile(volume.write("b.png", "b"))};
    // The Bin is there, but no page is left for a note.
    std::filesystem::remove_all(fileOps->trash(volume.write("other", "other")));
    const auto before = snapshot(volume.top());
    fileOps->before = [&](const std::string& step, const path&) {
        if (step == "trash") volume.fill();
    };
    const JobResult result = replace(files);
    EXPECT_EQ(brief(result), "saving failed cannotSave, saving failed cannotSave");
    EXPECT_EQ(detail(result), "No space left on device");
    EXPECT_TRUE(result.undo.isEmpty());
    std::filesystem::remove(volume.top() / ".filler");
    EXPECT_EQ(snapshot(volume.top()), before);
}

TEST_F(RealDisks, FullWithoutRoomForABin) {
    const MountedVolume volume(folder.files(), "size=1m,nr_inodes=12");
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const InputFile file = looseFile(volume.write("a.webp", "a"));
    fileOps->before = [&](const std::string& step, const path&) {
        for (int i = 0; step == "trash" && i < 12; ++i) std::ofstream(volume.top() / std::to_string(i));
    };
    const JobResult result = replace({file});
    EXPECT_EQ(brief(result), "saving failed cannotSave") << "the volume could have a Bin";
    EXPECT_EQ(detail(result), "No space left on device");
    EXPECT_EQ(contentOf(file.url), "a");
}

TEST_F(RealDisks, FullBinOnAnotherVolume) {
    const MountedVolume bin(folder.bin(), "size=64k,mode=0700", "files");
    if (!bin) GTEST_SKIP() << "mounting takes more rights";
    const std::vector<InputFile> files{looseFile(folder.write("big.webp", std::string(100'000, 'b'))),
                                       looseFile(folder.write("small.webp", "small"))};
    const auto before = snapshot(folder.files());
    const JobResult result = replace(files);
    EXPECT_EQ(brief(result), "saving failed cannotSave, done small.webp");
    EXPECT_EQ(detail(result), "No space left on device");
    EXPECT_EQ(contentOf(files[0].url), std::string(100'000, 'b'));
    EXPECT_EQ(namesIn(bin.top()), "small.webp") << "nothing unfinished is in the Bin";
    EXPECT_EQ(namesIn(folder.bin() / "info"), "small.webp.trashinfo");
    EXPECT_EQ(undo(result), (UndoReport{.removedOutputs = 1, .restoredItems = 1}));
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(RealDisks, FullWhenAnOriginalIsToComeBack) {
    const MountedVolume bin(folder.bin(), "size=1m,mode=0700", "files");
    const MountedVolume volume(folder.files(), "size=64k");
    if (!bin || !volume) GTEST_SKIP() << "mounting takes more rights";
    const path original = volume.write("a.png", std::string(30'000, 'a'));
    const UndoRecord record{.trashedItems = {{original, bin.top() / "a.png"}}};
    fileOps->move(original, bin.top() / "a.png");
    volume.fill();
    EXPECT_EQ(apply(record, *fileOps), (UndoReport{.problems = 1}));
    EXPECT_EQ(namesIn(volume.top()), ".filler");
    EXPECT_EQ(contentOf(bin.top() / "a.png"), std::string(30'000, 'a'));
    std::filesystem::remove(volume.top() / ".filler");
    EXPECT_EQ(apply(record, *fileOps), (UndoReport{.restoredItems = 1}));
    EXPECT_EQ(contentOf(original), std::string(30'000, 'a'));
}

TEST_F(RealDisks, ReadOnly) {
    const MountedVolume volume(folder.files());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const std::vector<InputFile> files{looseFile(volume.write("a.webp", "a")),
                                       looseFile(volume.write("b.png", "b"))};
    const auto before = snapshot(volume.top());
    ASSERT_TRUE(volume.makeReadOnly());
    for (const JobResult& result :
         {replace(files), replace(files, ClashPolicy::replace), into(volume.top(), files)}) {
        EXPECT_EQ(brief(result), "saving failed cannotSave, saving failed cannotSave");
        EXPECT_EQ(detail(result), "Read-only file system");
    }
    const JobResult noFolder = into(volume.top() / "new/out", files);
    EXPECT_EQ(brief(noFolder), "saving failed cannotCreateFolder, saving failed cannotCreateFolder");
    EXPECT_EQ(detail(noFolder), "Read-only file system");
    EXPECT_EQ(snapshot(volume.top()), before);
    EXPECT_EQ(namesIn(folder.staging()), "");
}

TEST_F(RealDisks, ReadOnlyFromTheMiddleOfAJob) {
    const MountedVolume volume(folder.files());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const InputFile file = looseFile(volume.write("a.png", "a"));
    const auto before = snapshot(volume.top());
    processor.work = [&](const InputFile&, const path& destination, const WorkContext&) {
        std::ofstream(destination) << "new";
        EXPECT_TRUE(volume.makeReadOnly());
    };
    EXPECT_EQ(brief(replace({file})), "saving failed cannotSave");
    ASSERT_TRUE(volume.makeWritable());
    EXPECT_NE(snapshot(volume.top()), before) << "what was staged could not be removed";
    processor.work = {};
    const JobResult next = into(folder.files() / "out", {file});
    EXPECT_EQ(snapshot(volume.top()), before) << "the next job removed it";
    EXPECT_EQ(namesIn(folder.staging()), "");
}

TEST_F(RealDisks, WithoutABin) {
    const MountedVolume volume(folder.files());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const std::vector<InputFile> files{looseFile(volume.write("same.webp", "s")),
                                       looseFile(volume.write("other.png", "o")),
                                       looseFile(folder.write("home.png", "h"))};
    std::ofstream(volume.top() / ownBin()) << "a file where the Bin should be";
    volume.write("other.webp", "in the way");
    const auto before = snapshot(folder.files());
    const JobResult result = replace(files, ClashPolicy::replace);
    EXPECT_EQ(brief(result),
              "done same 2.webp originalKeptNoBin, done other 2.webp originalKeptNoBin, done home.webp");
    EXPECT_EQ(undo(result), (UndoReport{.removedOutputs = 3, .restoredItems = 1}));
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(RealDisks, ADestinationThatGoesAwayBeforeSavingIsMadeAgain) {
    const std::vector<InputFile> files{looseFile(folder.write("a.png", "a")),
                                       looseFile(folder.write("b.png", "b"))};
    const path out = folder.files() / "out/today";
    std::filesystem::create_directories(out);
    processor.work = [&](const InputFile& file, const path& destination, const WorkContext&) {
        std::filesystem::copy_file(file.url, destination);
        std::filesystem::remove_all(out.parent_path());
    };
    const JobResult result = into(out, files);
    EXPECT_EQ(brief(result), "done a.webp, done b.webp");
    EXPECT_EQ(contentOf(out / "a.webp") + contentOf(out / "b.webp"), "ab");
    EXPECT_EQ(undo(result), (UndoReport{.removedOutputs = 2}));
    EXPECT_EQ(namesIn(folder.files()), "a.png|b.png");
}

TEST_F(RealDisks, ADestinationThatGoesAwayWhileSavingCostsOneItem) {
    const std::vector<InputFile> files{looseFile(folder.write("a.png", "a")),
                                       looseFile(folder.write("b.png", "b"))};
    const path out = folder.files() / "out";
    fileOps->before = [&](const std::string& step, const path& to) {
        if (step == "move" && to.filename() == "a.webp") std::filesystem::remove_all(out);
    };
    const JobResult result = into(out, files);
    EXPECT_EQ(brief(result), "saving failed cannotSave, done b.webp");
    EXPECT_EQ(detail(result), "No such file or directory");
    EXPECT_EQ(contentOf(out / "b.webp"), "made of b");
    EXPECT_EQ(undo(result), (UndoReport{.removedOutputs = 1}));
    EXPECT_EQ(namesIn(folder.files()), "a.png|b.png");
}

TEST_F(RealDisks, AFolderThatGoesAwayWithItsOriginalsWhileSaving) {
    const InputFile file = looseFile(folder.write("trip/a.png", "a"));
    const auto before = snapshot(folder.files());
    fileOps->before = [&](const std::string& step, const path& to) {
        if (step == "move" && to.filename() == "a.webp") std::filesystem::remove(file.url.parent_path());
    };
    const JobResult result = replace({file});
    EXPECT_EQ(brief(result), "saving failed cannotSaveOriginalInBin");
    fileOps->before = {};
    EXPECT_EQ(undo(result), (UndoReport{.restoredItems = 1}));
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST_F(RealDisks, AVolumeThatIsTakenAway) {
    MountedVolume volume(folder.files());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const std::vector<InputFile> files{looseFile(volume.write("photos/a.webp", "a")),
                                       looseFile(folder.write("b.png", "b"))};
    processor.work = [&](const InputFile& file, const path& destination, const WorkContext&) {
        std::ofstream(destination) << "new";
        if (file.url == files[1].url) volume.unmount();
    };
    const JobResult result = replace(files);
    EXPECT_EQ(brief(result), "saving failed inputMissing, done b.webp");
    EXPECT_EQ(detail(result), "This file is no longer there.");
    EXPECT_EQ(undo(result), (UndoReport{.removedOutputs = 1, .restoredItems = 1}));
    EXPECT_EQ(namesIn(folder.files()), "b.png|volume");
    EXPECT_EQ(namesIn(folder.staging()), "");
}

}  // namespace
}  // namespace tamble
