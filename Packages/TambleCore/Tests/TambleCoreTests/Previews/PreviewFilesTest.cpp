#include <TambleCore/Previews/PreviewFiles.h>

#include <limits>

#include <TambleCoreTests/TemporaryFolder.h>
#include <sys/stat.h>

namespace tamble {
namespace {

using namespace PreviewFiles;

PreviewPicture numbered(int width, int height, int channels) {
    PreviewPicture picture{width, height, channels, {}};
    for (int i = 0; i < width * height * channels; ++i)
        picture.samples.push_back(static_cast<std::uint8_t>(i));
    return picture;
}

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(PreviewFiles, BringBackWhatWasWritten) {
    const testing::TemporaryFolder folder;
    const auto place = folder.path() / "0";
    for (const int channels : {3, 4}) {
        write(place, numbered(7, 5, channels));
        EXPECT_EQ(readPicture(place, 7), numbered(7, 5, channels));
        EXPECT_EQ(readPicture(place, 6), std::nullopt);
        EXPECT_THROW(write(place, numbered(7, 5, channels)), std::filesystem::filesystem_error);
        std::filesystem::remove(place);
    }
    const std::vector<PreviewPage> pages{{595.276, 841.89}, {1e-3, 1e9}};
    write(place, pages);
    EXPECT_EQ(readPages(place), pages);
    EXPECT_EQ(readPicture(place, 7), std::nullopt);
}

TEST(PreviewFiles, RefuseWhateverIsNotExactlyAPicture) {
    const testing::TemporaryFolder folder;
    const auto place = folder.path() / "0";
    write(place, numbered(4, 3, 3));
    const std::string good = bytesOf(place);
    const auto reads = [&](const std::string& content) {
        return readPicture(folder.file("changed", content), 8192).has_value();
    };
    const auto with = [&](std::size_t at, std::uint32_t number) {
        std::string content = good;
        std::memcpy(content.data() + at, &number, sizeof number);
        return content;
    };
    EXPECT_TRUE(reads(good));
    EXPECT_FALSE(reads(good + '\0'));
    for (const std::size_t length : {std::size_t{0}, std::size_t{7}, std::size_t{23}, good.size() - 1})
        EXPECT_FALSE(reads(good.substr(0, length))) << length;
    EXPECT_FALSE(reads("x" + good.substr(1)));
    constexpr auto most = std::numeric_limits<std::uint32_t>::max();
    for (const std::uint32_t number : {std::uint32_t{0}, std::uint32_t{2}, std::uint32_t{1} << 31U, most}) {
        for (const std::size_t at : {8, 12, 16}) EXPECT_FALSE(reads(with(at, number))) << at << " " << number;
    }
    // Their product, cut to 64 bits or less, would fit the length.
    EXPECT_FALSE(reads(with(8, most).replace(12, 4, "\xff\xff\xff\xff")));
    // The same number of samples in one channel of sixteen rows is no picture either.
    EXPECT_FALSE(reads(with(16, 1).replace(12, 1, "\x09")));
}

TEST(PreviewFiles, RefuseWhateverIsNoFile) {
    const testing::TemporaryFolder folder;
    const auto place = folder.path() / "0";
    write(place, numbered(4, 3, 3));
    std::filesystem::create_symlink(place, folder.path() / "link");
    std::filesystem::create_directory(folder.path() / "folder");
    ASSERT_EQ(::mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    for (const char* name : {"link", "folder", "pipe", "nothing", "0/0"})
        EXPECT_EQ(readPicture(folder.path() / name, 100), std::nullopt) << name;
    EXPECT_EQ(readPicture("/dev/zero", 100), std::nullopt);
}

TEST(PreviewFiles, RefusePagesWithoutASize) {
    const testing::TemporaryFolder folder;
    int count = 0;
    const auto reads = [&](const std::vector<PreviewPage>& pages) {
        const auto place = folder.path() / std::to_string(count++);
        write(place, pages);
        return readPages(place).has_value();
    };
    EXPECT_TRUE(reads({{1, 1}}));
    EXPECT_FALSE(reads({}));
    EXPECT_FALSE(reads({{1, 1}, {1, 0}}));
    EXPECT_FALSE(reads({{-1, 1}}));
    EXPECT_FALSE(reads({{1, std::numeric_limits<double>::infinity()}}));
    EXPECT_FALSE(reads({{std::numeric_limits<double>::quiet_NaN(), 1}}));
}

}  // namespace
}  // namespace tamble
