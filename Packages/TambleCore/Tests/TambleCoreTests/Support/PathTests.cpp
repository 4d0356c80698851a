#include <TambleCore/Support/FilePath.h>
#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/PathKey.h>

namespace tamble {
namespace {

TEST(FilePath, isThePathItWasMadeFrom) {
    const std::filesystem::path path("/a/b.tar.gz");
    const FilePath kept(path);
    EXPECT_EQ(kept, path);
    EXPECT_EQ(std::filesystem::path(kept), path);
    EXPECT_EQ(kept, FilePath("/a/b.tar.gz"));
    EXPECT_NE(kept, FilePath("/a/b.tar"));
    EXPECT_EQ(kept.stem(), "b.tar");
    const FilePath copy = kept;
    EXPECT_EQ(&copy.native(), &kept.native()) << "copies share the bytes";
    EXPECT_TRUE(FilePath().empty());
    EXPECT_EQ(FilePath().native(), "");
    EXPECT_EQ(FilePath(""), FilePath());
}

TEST(PathKey, oneFileHasOneKeyHoweverItIsNamed) {
    EXPECT_EQ(standardized("/a/./b/../c//"), "/a/c");
    EXPECT_EQ(standardized("/.."), "/");
    EXPECT_EQ(standardized("/"), "/");
    EXPECT_EQ(standardized("x/"), std::filesystem::current_path() / "x");
    EXPECT_EQ(exactPathKey("/Photos/e\xCC\x81.JPG"), "/Photos/\xC3\xA9.JPG");
    EXPECT_EQ(pathKey("/Photos/E\xCC\x81.JPG/"), pathKey("/photos/\xC3\xA9.jpg"));
    EXPECT_NE(exactPathKey("/a/B"), exactPathKey("/a/b"));
    EXPECT_NE(pathKey("/a/\xFF"), pathKey("/a/\xFE"));
    EXPECT_TRUE(namesFolder("/a/"));
    EXPECT_FALSE(namesFolder("/a"));
}

TEST(FileURL, everyNameComesBackByteForByte) {
    std::string bytes = "/";
    for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
    const auto url = fileURL(bytes);
    EXPECT_EQ(pathFromFileURL(url), std::filesystem::path(standardized(bytes)));
    EXPECT_EQ(fileURL("/a b/é%"), "file:///a%20b/%C3%A9%25");
    EXPECT_EQ(fileURL("/a/"), "file:///a/");
    EXPECT_EQ(fileURL(pathFromFileURL(fileURL("//")).value()), fileURL("//"));
    EXPECT_EQ(pathFromFileURL("file://localhost/a%2fb"), "/a/b");
}

TEST(FileURL, otherAddressesAreRefused) {
    for (const auto* wrong : {"", "/a", "http://a/b", "file://server/share", "file:///a%2", "file:///a%zz",
                              "file:///a%+1", "file:///a%00b", "file://"}) {
        EXPECT_EQ(pathFromFileURL(wrong), std::nullopt) << wrong;
    }
}

}  // namespace
}  // namespace tamble
