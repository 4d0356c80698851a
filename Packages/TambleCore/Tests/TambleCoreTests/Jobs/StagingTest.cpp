#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Jobs/StagingArea.h>

#include <TambleCoreTests/Jobs/TestProcessors.h>
#include <TambleCoreTests/Platform/MountedVolume.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble {
namespace {

using std::filesystem::path;

TEST(Staging, IsPrivateAndOutOfSight) {
    const TestFolder folder;
    {
        StagingArea staging;
        const path place = staging.makePlace(7, folder.files() / "not/yet/there/a.webp");
        EXPECT_EQ(place.extension(), ".webp");
        EXPECT_EQ(staging.placeOf(7), place);
        EXPECT_EQ(std::filesystem::status(place.parent_path()).permissions(),
                  std::filesystem::perms(0700));
        EXPECT_EQ(namesIn(folder.files()), "");
        std::ofstream(place) << "unfinished";
        removeStaleStagingFolders();
        EXPECT_TRUE(std::filesystem::exists(place)) << "its owner lives";
        staging.discard(7);
        EXPECT_FALSE(std::filesystem::exists(place));
    }
    EXPECT_EQ(namesIn(folder.staging()), "");
}

TEST(Staging, OfAProgramThatDiedIsRemovedLater) {
    const TestFolder folder;
    const pid_t child = ::fork();
    if (child == 0) {
        StagingArea staging;
        std::ofstream(staging.makePlace(0, folder.files() / "a.webp")) << "unfinished";
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_NE(namesIn(folder.staging()), "");
    // An entry that names something else removes nothing.
    const path mine = folder.write("mine/a.png", "mine");
    std::ofstream(folder.staging() / (newUUID() + ".lock")) << fileURL(mine.parent_path()) << "\n";
    std::ofstream(folder.staging() / (newUUID() + ".lock")) << "nonsense";
    ASSERT_EQ(brief(engineWith().run({looseFile(mine)}, TestProcessor(), {})), "done a.webp");
    EXPECT_EQ(namesIn(folder.staging()), "");
    EXPECT_EQ(contentOf(mine), "mine");
}

TEST(Staging, StandsOnTheVolumeOfEachDestination) {
    const TestFolder folder;
    const MountedVolume volume(folder.files());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const std::vector<InputFile> files{looseFile(folder.write("a.png", "a")),
                                       looseFile(volume.write("in/b.png", "b"))};
    const auto before = snapshot(folder.files());
    TestProcessor processor;
    processor.work = [&](const InputFile& file, const path& destination, const WorkContext&) {
        EXPECT_EQ(Volume::of(destination.parent_path()), Volume::of(file.url));
        std::ofstream(destination) << "new";
    };
    const JobResult result = engineWith().run(files, processor, {.location = location::ReplaceOriginals{}});
    EXPECT_EQ(brief(result), "done a.webp, done b.webp");
    EXPECT_EQ(namesIn(volume.top() / "in"), "b.webp");
    EXPECT_EQ(namesIn(volume.top()), ".Trash-" + std::to_string(::getuid()) + "|in") << "no staging is left";
    SystemFileOperations fileOps;
    EXPECT_EQ(apply(result.undo, fileOps), (UndoReport{.removedOutputs = 2, .restoredItems = 2}));
    std::filesystem::remove_all(volume.top() / (".Trash-" + std::to_string(::getuid())));
    EXPECT_EQ(snapshot(folder.files()), before);
}

TEST(Staging, AFullDiskFailsTheItemAndLeavesNothing) {
    const TestFolder folder;
    const MountedVolume volume(folder.files(), "size=1m");
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const InputFile big = looseFile(folder.write("big.png", std::string(3'000'000, 'x')));
    const InputFile small = looseFile(folder.write("small.png", "small"));
    const JobConfiguration into{.location = location::Folder{.value = volume.top() / "out"},
                                .maxConcurrent = 1};
    const JobResult result = engineWith().run({big, small}, CopyThroughProcessor(), into);
    EXPECT_EQ(brief(result), "processing failed unexpected, done small.png");
    EXPECT_THAT(std::get<outcome::Failed>(result.items[0].outcome).value.detail,
                testing::HasSubstr("No space left on device"));
    EXPECT_EQ(namesIn(volume.top()), "out");

    ASSERT_TRUE(volume.makeReadOnly());
    EXPECT_EQ(brief(engineWith().run({small}, CopyThroughProcessor(), into)), "saving failed cannotSave");
}

}  // namespace
}  // namespace tamble
