#include <TambleCore/Platform/SystemFileOperations.h>

#include <set>

#include <TambleCoreTests/Platform/MountedVolume.h>
#include <unistd.h>

namespace tamble {
namespace {

using std::filesystem::path;

path noteBeside(const path& landed) {
    path note = landed.parent_path().parent_path() / "info" / landed.filename();
    note += ".trashinfo";
    return note;
}

class Trash : public testing::Test {
  protected:
    TestFolder folder;
    SystemFileOperations fileOps;
};

TEST_F(Trash, HomeBinHoldsTheItemAndANoteThatDesktopsRead) {
    const path item = folder.write("Größe 100%.png", "old");
    const path landed = fileOps.trash(item);
    EXPECT_EQ(landed, folder.bin() / "files" / item.filename());
    EXPECT_EQ(contentOf(landed), "old");
    const std::string note = contentOf(noteBeside(landed));
    const std::string place = std::filesystem::canonical(folder.files()).native();
    EXPECT_THAT(note, testing::StartsWith("[Trash Info]\nPath=" + place + "/Gr%C3%B6%C3%9Fe%20100%25.png\n"));
    // POSIX extended syntax: std::regex draws false warnings from g++ 12 under the sanitizers.
    EXPECT_THAT(note, testing::ContainsRegex(
                          "\nDeletionDate=[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}\n$"));
    EXPECT_EQ(std::filesystem::status(folder.bin()).permissions(), std::filesystem::perms(0700));

    fileOps.move(landed, item);
    EXPECT_EQ(contentOf(item), "old");
    EXPECT_EQ(namesIn(folder.bin() / "files") + namesIn(folder.bin() / "info"), "")
        << "the note goes as well";
}

TEST_F(Trash, ItemsOfOneNameStandBesideEachOther) {
    const std::string longName(255, 'n');
    for (const std::string& name : {std::string("a.tar.gz"), longName}) {
        std::set<path> landed;
        for (int i = 0; i < 30; ++i) {
            const path place = fileOps.trash(folder.write(name, std::to_string(i)));
            EXPECT_EQ(contentOf(place), std::to_string(i));
            EXPECT_TRUE(std::filesystem::exists(noteBeside(place)));
            landed.insert(place);
        }
        EXPECT_EQ(landed.size(), 30U);
    }
    // An item without a note keeps its name.
    std::ofstream(folder.bin() / "files/b") << "orphan";
    const path beside = fileOps.trash(folder.write("b", "mine"));
    EXPECT_EQ(contentOf(folder.bin() / "files/b") + contentOf(beside), "orphanmine");
    EXPECT_FALSE(std::filesystem::exists(folder.bin() / "info/b.trashinfo"));
}

TEST_F(Trash, FoldersAndLinksGoThemselves) {
    const path inside = folder.write("album/a.png", "a");
    std::filesystem::create_symlink("album", folder.files() / "link");
    const path link = fileOps.trash(folder.files() / "link");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    // Reached through a link, the note names the real place.
    std::filesystem::create_symlink("album", folder.files() / "link");
    const path landed = fileOps.trash(folder.files() / "link/a.png");
    EXPECT_THAT(contentOf(noteBeside(landed)), testing::HasSubstr("/files/album/a.png\n"));
    fileOps.move(landed, inside);
    EXPECT_EQ(contentOf(fileOps.trash(inside.parent_path()) / "a.png"), "a");
    EXPECT_THROW(fileOps.trash(inside), std::filesystem::filesystem_error);
}

TEST_F(Trash, AnotherVolumeHasABinAtItsTop) {
    const MountedVolume volume(folder.files());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const std::string user = std::to_string(::getuid());
    const path own = volume.top() / (".Trash-" + user);
    const auto trashed = [&] { return fileOps.trash(volume.write("photos/a b.png", "old")); };

    EXPECT_EQ(trashed(), own / "files/a b.png");
    EXPECT_EQ(std::filesystem::status(own).permissions(), std::filesystem::perms(0700));
    EXPECT_THAT(contentOf(own / "info/a b.png.trashinfo"), testing::HasSubstr("\nPath=photos/a%20b.png\n"));

    // The administrator's Bin counts only if it is a real folder with the sticky bit.
    const path shared = volume.top() / ".Trash";
    std::filesystem::create_directory(volume.top() / "elsewhere");
    std::filesystem::permissions(volume.top() / "elsewhere", std::filesystem::perms(01777));
    std::filesystem::create_symlink("elsewhere", shared);
    EXPECT_EQ(trashed().parent_path(), own / "files");
    std::filesystem::remove(shared);
    std::filesystem::create_directory(shared);
    std::filesystem::permissions(shared, std::filesystem::perms(0777));
    EXPECT_EQ(trashed().parent_path(), own / "files");
    std::filesystem::permissions(shared, std::filesystem::perms(01777));
    EXPECT_EQ(trashed(), shared / user / "files/a b.png");
}

TEST_F(Trash, AVolumeWithoutABinSaysSo) {
    const MountedVolume volume(folder.files());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    const path item = volume.write("a.png", "old");
    std::ofstream(volume.top() / (".Trash-" + std::to_string(::getuid())))
        << "a file where the Bin should be";
    const auto isNoBin = [&] {
        try {
            fileOps.trash(item);
            return false;
        } catch (const std::filesystem::filesystem_error& error) {
            return fileOps.isNoBinError(error.code());
        }
    };
    EXPECT_TRUE(isNoBin());
    EXPECT_EQ(contentOf(item), "old");
    EXPECT_FALSE(fileOps.isNoBinError(std::make_error_code(std::errc::no_such_file_or_directory)));
}

}  // namespace
}  // namespace tamble
