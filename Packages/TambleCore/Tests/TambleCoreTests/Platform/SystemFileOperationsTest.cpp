#include <TambleCore/Platform/SystemFileOperations.h>

#include <array>

#include <TambleCoreTests/Platform/MountedVolume.h>
#include <sys/xattr.h>

namespace tamble {
namespace {

using std::filesystem::path;

class FileOperationsTest : public testing::Test {
  protected:
    template <typename Step>
    std::error_code errorOf(const Step& step) {
        try {
            step();
            return {};
        } catch (const std::filesystem::filesystem_error& error) {
            return error.code();
        }
    }

    TestFolder folder;
    SystemFileOperations fileOps;
};

TEST_F(FileOperationsTest, MovesNeverOverwrite) {
    const path from = folder.write("from", "mine"), to = folder.write("to", "theirs");
    EXPECT_EQ(errorOf([&] { fileOps.move(from, to); }), std::errc::file_exists);
    std::filesystem::create_directory(folder.files() / "empty");
    EXPECT_EQ(errorOf([&] { fileOps.move(from, folder.files() / "empty"); }), std::errc::file_exists);
    std::filesystem::create_symlink("nowhere", folder.files() / "dangling");
    EXPECT_EQ(errorOf([&] { fileOps.move(from, folder.files() / "dangling"); }), std::errc::file_exists);
    EXPECT_EQ(contentOf(from) + contentOf(to), "minetheirs");
    EXPECT_EQ(errorOf([&] { fileOps.move(folder.files() / "none", folder.files() / "x"); }),
              std::errc::no_such_file_or_directory);
}

TEST_F(FileOperationsTest, MovesAcrossVolumesKeepEverything) {
    const MountedVolume volume(folder.home());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const path file = folder.write("album/a.png", std::string(3'000'000, 'x'));
    std::filesystem::permissions(file, std::filesystem::perms(0640));
    std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) - std::chrono::hours(99));
    std::filesystem::create_symlink("a.png", folder.files() / "album/link");
    folder.write("album/inner/b", "b");
    const bool hasAttributes = ::setxattr(file.c_str(), "trusted.tamble", "red", 3, 0) == 0;
    const auto before = snapshot(folder.files() / "album");

    fileOps.move(folder.files() / "album", volume.top() / "album");
    EXPECT_EQ(snapshot(volume.top() / "album"), before);
    EXPECT_EQ(namesIn(folder.files()), "");
    EXPECT_EQ(namesIn(volume.top()), "album");
    if (hasAttributes) {
        std::array<char, 8> value{};
        EXPECT_EQ(
            ::getxattr((volume.top() / "album/a.png").c_str(), "trusted.tamble", value.data(), value.size()),
            3);
    }

    const path back = folder.write("a.png", "theirs");
    EXPECT_EQ(errorOf([&] { fileOps.move(volume.top() / "album/a.png", back); }), std::errc::file_exists);
    EXPECT_EQ(contentOf(back), "theirs");
    EXPECT_EQ(snapshot(volume.top() / "album"), before);
}

TEST_F(FileOperationsTest, AMoveThatDoesNotFitChangesNothing) {
    const MountedVolume volume(folder.home(), "size=1m");
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    folder.write("album/small", "small");
    folder.write("album/big", std::string(3'000'000, 'x'));
    const auto before = snapshot(folder.files());
    EXPECT_EQ(errorOf([&] { fileOps.move(folder.files() / "album", volume.top() / "album"); }),
              std::errc::no_space_on_device);
    EXPECT_EQ(snapshot(folder.files()), before);
    EXPECT_EQ(namesIn(volume.top()), "");

    // Copied, but the source cannot be taken away: still one file, in its old place.
    const path kept = volume.write("kept", "kept");
    ASSERT_TRUE(volume.makeReadOnly());
    EXPECT_EQ(errorOf([&] { fileOps.move(kept, folder.files() / "kept"); }),
              std::errc::read_only_file_system);
    EXPECT_EQ(namesIn(folder.files()), "album");
    EXPECT_EQ(contentOf(kept), "kept");
}

TEST_F(FileOperationsTest, RemovesWhatIsThere) {
    folder.write("album/a", "a");
    EXPECT_EQ(errorOf([&] { fileOps.removeEmptyDirectory(folder.files() / "album"); }),
              std::errc::directory_not_empty);
    // A link to a folder goes alone.
    std::filesystem::create_directory_symlink("album", folder.files() / "link");
    fileOps.remove(folder.files() / "link");
    EXPECT_EQ(contentOf(folder.files() / "album/a"), "a");
    fileOps.remove(folder.files() / "album/");
    EXPECT_EQ(namesIn(folder.files()), "");
    EXPECT_EQ(errorOf([&] { fileOps.remove(folder.files() / "album"); }),
              std::errc::no_such_file_or_directory);
}

}  // namespace
}  // namespace tamble
