#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/PathKey.h>

namespace tamble {
namespace {

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
