#include <TambleCore/Intake/FolderScanner.h>
#include <TambleCore/Support/Log.h>

#include <TambleCoreTests/TemporaryFolder.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tamble {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::TemporaryFolder;

ScanResult scan(std::vector<std::filesystem::path> urls, bool includeSubfolders = true) {
    return FolderScanner{ScanOptions(includeSubfolders)}.scan(urls);
}

std::vector<std::string> names(const ScanResult& result) {
    std::vector<std::string> list;
    for (const auto& file : result.files) list.push_back(file.url.filename());
    return list;
}

/// The superuser may read everything: acts as nobody while it lives.
class WithoutPrivileges {
  public:
    WithoutPrivileges() { EXPECT_TRUE(!isSuperuser_ || ::seteuid(65534) == 0); }
    ~WithoutPrivileges() { EXPECT_TRUE(!isSuperuser_ || ::seteuid(0) == 0); }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

  private:
    bool isSuperuser_ = ::geteuid() == 0;
};

TEST(FolderScanner, aStopRequestEndsItSoon) {
    const TemporaryFolder folder;
    for (const char* name : {"a/1.jpg", "b/1.png", "c/1.webp"}) folder.file(name);
    std::stop_source stop;
    ScanOptions options(true);
    options.accepts = [&](const std::optional<ContentType>& type) {
        stop.request_stop();
        return type.has_value();
    };
    const std::vector urls{folder.path()};
    const auto stopped = FolderScanner{options}.scan(urls, stop.get_token());
    EXPECT_TRUE(stopped.wasCancelled);
    EXPECT_THAT(names(stopped), ElementsAre("1.jpg"));
    EXPECT_FALSE(FolderScanner{options}.scan(urls).wasCancelled);
}

TEST(FolderScanner, filesStandInFinderOrderAndBeforeThoseOfSubfolders) {
    const TemporaryFolder folder;
    folder.file("A/1.jpg", "12345");
    folder.file("10.jpg");
    folder.file("2.jpg");
    folder.file("b.JPG");
    folder.file("A/deep/x/3.png");
    folder.file("a10/4.jpg");
    folder.file("a9/5.jpg");
    folder.file("notes.txt");
    folder.folder("empty/inside");

    const auto result = scan({folder.path()});
    EXPECT_THAT(names(result), ElementsAre("2.jpg", "10.jpg", "b.JPG", "1.jpg", "3.png", "5.jpg", "4.jpg"));
    EXPECT_EQ(result.otherFileCount, 1);
    EXPECT_EQ(result.looseFileCount, 0);
    EXPECT_EQ(result.totalBytes, 11);
    EXPECT_EQ(result.files[4].url, folder.path() / "A/deep/x/3.png");
    EXPECT_EQ(result.files[4].root, folder.path());
    EXPECT_EQ(result.files[4].relativeFolder, "A/deep/x");
    EXPECT_EQ(result.files[3].byteSize, 5);
    EXPECT_EQ(result.files[0].relativeFolder, "");

    ASSERT_EQ(result.roots.size(), 1U);
    const auto& root = result.roots[0];
    EXPECT_EQ(root.name, folder.path().filename());
    EXPECT_EQ(root.fileCount, 3);
    EXPECT_EQ(root.totalFileCount(), 7);
    ASSERT_EQ(root.children.size(), 3U);
    EXPECT_EQ(root.children[0].name, "A");
    EXPECT_EQ(root.children[1].name, "a9");
    const auto& innermost = root.children[0].children.at(0).children.at(0);
    EXPECT_EQ(innermost.relativePath, "A/deep/x");
    EXPECT_EQ(innermost.url, folder.path() / "A/deep/x");
    EXPECT_EQ(innermost.depth, 3);
}

TEST(FolderScanner, subfoldersAreLeftAloneWhenNotAskedFor) {
    const TemporaryFolder folder;
    folder.file("1.jpg");
    folder.file("sub/2.jpg");
    folder.file("sub/notes.txt");
    const auto result = scan({folder.path()}, false);
    EXPECT_THAT(names(result), ElementsAre("1.jpg"));
    EXPECT_EQ(result.otherFileCount, 0);
    EXPECT_TRUE(result.roots.at(0).children.empty());
}

TEST(FolderScanner, aFileDroppedSeveralTimesIsTakenOnce) {
    const TemporaryFolder folder;
    const auto file = folder.file("sub/1.jpg", "123");
    folder.file("sub/2.jpg");

    auto result =
        scan({file, folder.path(), file, folder.path() / "sub", folder.path() / "sub/../sub/1.jpg"});
    EXPECT_THAT(names(result), ElementsAre("1.jpg", "2.jpg"));
    EXPECT_EQ(result.looseFileCount, 1);
    EXPECT_EQ(result.totalBytes, 4);
    EXPECT_TRUE(result.files[0].isLoose);
    EXPECT_EQ(result.files[0].root, folder.path() / "sub");
    EXPECT_FALSE(result.files[1].isLoose);
    ASSERT_EQ(result.roots.size(), 1U);
    EXPECT_EQ(result.roots[0].totalFileCount(), 1);
    EXPECT_EQ(result.emptyFolderCount, 0);

    // One Unicode name in two spellings is one key, in one dropped folder too.
    folder.file("names/\xC3\xA9.jpg");
    folder.file("names/e\xCC\x81.jpg");
    EXPECT_EQ(scan({folder.path() / "names"}).files.size(), 1U);
    folder.file("folders/\xC3\xA9/1.jpg");
    folder.file("folders/e\xCC\x81/1.jpg");
    EXPECT_EQ(scan({folder.path() / "folders"}).files.size(), 1U);
}

TEST(FolderScanner, linksAndPackagesAreCountedAndNotEntered) {
    const TemporaryFolder folder;
    folder.file("real/1.jpg");
    folder.file("Viewer.app/icon.png");
    folder.file("Old.PhotosLibrary/originals/1.jpg");
    std::filesystem::create_directory_symlink(folder.path() / "real", folder.path() / "link");
    std::filesystem::create_symlink(folder.path() / "real/1.jpg", folder.path() / "picture.jpg");
    std::filesystem::create_symlink("nowhere", folder.path() / "broken.jpg");

    const auto result = scan({folder.path(), folder.path() / "link", folder.path() / "Viewer.app/"});
    EXPECT_THAT(names(result), ElementsAre("1.jpg"));
    EXPECT_EQ(result.skippedLinkCount, 4);
    EXPECT_EQ(result.skippedPackageCount, 3);
    EXPECT_EQ(result.unreadableCount, 0);
    EXPECT_EQ(result.roots.size(), 1U);
    EXPECT_THAT(scanNotes(result), ElementsAre("Shortcuts to other folders aren't followed.",
                                               "App packages and photo libraries aren't opened."));
}

TEST(FolderScanner, whatHoldsNothingYieldsNoRoot) {
    const TemporaryFolder folder;
    folder.file("hidden/.1.jpg");
    folder.file("hidden/.sub/2.jpg");
    auto result = scan({folder.path() / "hidden"});
    EXPECT_TRUE(result.files.empty());
    EXPECT_TRUE(result.roots.empty());
    EXPECT_EQ(result.otherFileCount, 0);
    EXPECT_THAT(scanNotes(result), ElementsAre("The folder you chose is empty or couldn't be read."));
    // A hidden file dropped itself is meant.
    EXPECT_EQ(scan({folder.path() / "hidden/.1.jpg"}).looseFileCount, 1);

    folder.file("texts/notes.txt");
    result = scan({folder.path() / "texts", folder.path() / "texts/notes.txt"});
    EXPECT_TRUE(result.roots.empty());
    EXPECT_EQ(result.otherFileCount, 2);
    EXPECT_TRUE(scanNotes(result).empty());
}

TEST(FolderScanner, unreadableItemsAreCountedAndLogged) {
    const TemporaryFolder folder;
    const LogCapture log;
    auto result = scan({folder.path() / "missing.jpg", folder.path() / "missing"});
    EXPECT_EQ(result.unreadableCount, 2);
    EXPECT_THAT(scanNotes(result), ElementsAre("2 items couldn't be read."));
    EXPECT_THAT(log.text(), HasSubstr("intake: Scanned 0 files, 0 others, 2 unreadable\n"));

    folder.file("good/1.jpg");
    folder.file("closed/2.jpg");
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(folder.path() / "closed", std::filesystem::perms::none);
    {
        const WithoutPrivileges guard;
        result = scan({folder.path()});
    }
    std::filesystem::permissions(folder.path() / "closed", std::filesystem::perms::owner_all);
    EXPECT_THAT(names(result), ElementsAre("1.jpg"));
    EXPECT_EQ(result.unreadableCount, 1);
    EXPECT_THAT(log.text(), HasSubstr("intake: Can't read folder <private>: Permission denied\n"));
}

TEST(FolderScanner, stopsAtTheDeepestFolderAllowed) {
    const TemporaryFolder folder;
    std::filesystem::path deep;
    for (int depth = 1; depth <= 70; ++depth) {
        deep /= "d";
        folder.file(deep / "1.jpg");
    }
    const LogCapture log;
    const auto result = scan({folder.path()});
    EXPECT_EQ(result.files.size(), 64U);
    EXPECT_EQ(log.text(),
              "intake: Stopped at max depth in <private>\n"
              "intake: Scanned 64 files, 0 others, 0 unreadable\n");
}

TEST(FolderScanner, pathsMayBeLongerThanTheSystemTakes) {
    const TemporaryFolder folder;
    const std::string name(255, 'n');
    std::vector<int> opened{::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY)};
    for (int depth = 0; depth < 30; ++depth) {
        ASSERT_EQ(::mkdirat(opened.back(), name.c_str(), 0700), 0);
        opened.push_back(::openat(opened.back(), name.c_str(), O_RDONLY | O_DIRECTORY));
    }
    ::close(::openat(opened.back(), "1.jpg", O_CREAT | O_WRONLY, 0600));
    const auto result = scan({folder.path()});
    for (const int descriptor : opened) ::close(descriptor);
    EXPECT_EQ(result.unreadableCount, 0);
    ASSERT_EQ(result.files.size(), 1U);
    EXPECT_GT(result.files[0].url.native().size(), 7000U);
    EXPECT_EQ(result.files[0].relativeFolder.size(), 30U * 256U - 1U);
}

TEST(FolderScanner, anyNameIsTakenAsItIs) {
    const TemporaryFolder folder;
    const std::vector<std::string> odd = {"-n.jpg",   "a\nb.jpg", "\xFF\xFE.jpg",
                                          "p[0].jpg", "50%.jpg",  std::string(251, 'x') + ".jpg"};
    for (const auto& name : odd) folder.file(name);
    ASSERT_EQ(::mkfifo((folder.path() / "pipe.jpg").c_str(), 0600), 0);
    const auto result = scan({folder.path()});
    EXPECT_THAT(names(result), ::testing::UnorderedElementsAreArray(odd));
    EXPECT_EQ(result.unreadableCount + result.otherFileCount, 0);
}

TEST(FolderScanner, takesWhatThePredicateWantsAndLooksIntoNamesWithoutExtension) {
    const TemporaryFolder folder;
    folder.file("scan", "%PDF-1.7");
    folder.file("a.pdf");
    folder.file("readme", "words");
    FolderScanner scanner{ScanOptions(true)};
    scanner.options.accepts = [](const auto& type) { return type && type->conformsTo("com.adobe.pdf"); };
    const auto result = scanner.scan(std::vector{folder.path()});
    EXPECT_THAT(names(result), ElementsAre("a.pdf", "scan"));
    EXPECT_EQ(result.otherFileCount, 1);
}

}  // namespace
}  // namespace tamble
