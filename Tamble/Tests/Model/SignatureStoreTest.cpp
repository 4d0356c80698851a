#include <Tamble/Model/SignatureStore.h>

#include <TambleCore/Support/Log.h>

#include <fstream>
#include <thread>

#include <TambleCoreTests/TestFolder.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<std::byte> png(std::string_view pixels) {
    std::vector<std::byte> bytes;
    for (const char c : "\x89PNG\r\n\x1A\n" + std::string(pixels)) bytes.push_back(std::byte(c));
    return bytes;
}

class Signatures : public testing::Test {
  protected:
    std::filesystem::path file(const std::string& id) const {
        return SignatureStore::defaultFolder() / (id + ".json");
    }
    SavedSignature saved(std::string_view pixels, const std::vector<InkStroke>& strokes = {}) {
        return store.add(png(pixels), strokes).value();
    }
    TestFolder folder;
    SignatureStore store;
};

TEST_F(Signatures, AreKeptPrivatelyUntilTheyAreRemoved) {
    EXPECT_THAT(store.all(), IsEmpty());
    const std::vector<InkStroke> strokes{{{.x = 0.1, .y = 0.2, .width = 0.01}, {0.3, 0.25, 0.02}}, {}};
    const SavedSignature drawn = saved("drawn", strokes);
    const SavedSignature photographed = saved("photographed");
    EXPECT_EQ(SignatureStore().all(), (std::vector{photographed, drawn}));
    EXPECT_EQ(drawn.strokes, strokes);
    struct stat properties {};
    ASSERT_EQ(::stat(file(drawn.id).c_str(), &properties), 0);
    EXPECT_EQ(properties.st_mode & 07777U, 0600U);
    ASSERT_EQ(::stat(SignatureStore::defaultFolder().c_str(), &properties), 0);
    EXPECT_EQ(properties.st_mode & 07777U, 0700U);

    const double nowhere = std::numeric_limits<double>::quiet_NaN();
    const SavedSignature odd = saved("odd", {{{nowhere, 0, 0}, {1, 1, 1}}});
    EXPECT_EQ(store.all().front(), odd);
    EXPECT_EQ(odd.strokes, (std::vector<InkStroke>{{{1, 1, 1}}}));
    store.remove(odd.id);

    store.remove(drawn.id);
    store.remove(drawn.id);
    EXPECT_EQ(store.all(), std::vector{photographed});
    folder.write("victim.json", "mine");
    store.remove("../../../../files/victim");
    EXPECT_EQ(contentOf(folder.files() / "victim.json"), "mine");
    EXPECT_FALSE(store.add({}));
    EXPECT_FALSE(store.add({std::byte{'G'}, std::byte{'I'}, std::byte{'F'}}));
    EXPECT_THAT(store.all(), SizeIs(1));
}

TEST_F(Signatures, ADamagedFileCostsOnlyItself) {
    const SavedSignature whole = saved("whole");
    const SavedSignature cut = saved("cut");
    const SavedSignature swapped = saved("swapped");
    std::filesystem::resize_file(file(cut.id), 40);
    std::filesystem::copy_file(file(whole.id), file(swapped.id),
                               std::filesystem::copy_options::overwrite_existing);
    std::ofstream(file(newUUID())) << R"({"id": 7})";
    std::ofstream(file(newUUID())) << "[[[[";
    std::filesystem::create_directory(file(newUUID()));
    std::filesystem::create_symlink("/nowhere", file(newUUID()));
    std::ofstream(SignatureStore::defaultFolder() / "note.txt") << "mine";
    const auto huge = file(newUUID());
    std::ofstream(huge) << "{";
    std::filesystem::resize_file(huge, SignatureStore::maximumBytes + 1);
    const LogCapture log;
    EXPECT_EQ(store.all(), std::vector{whole});
    EXPECT_THAT(log.text(), HasSubstr("signatures: Signature unreadable, leaving it out: "));
    EXPECT_THAT(log.text(), testing::Not(HasSubstr(folder.home().native())));
    EXPECT_TRUE(store.add(png("another")));
    EXPECT_TRUE(std::filesystem::exists(file(cut.id))) << "it may be mended";
}

TEST_F(Signatures, AreAtMostAsManyAsThereMayBe) {
    const auto fill = [] {
        for (std::size_t i = 0; i < SignatureStore::maximum; ++i) SignatureStore().add(png("x"));
    };
    std::jthread(fill).join();
    { const std::jthread one(fill), other(fill); }
    EXPECT_THAT(store.all(), SizeIs(SignatureStore::maximum));
    EXPECT_FALSE(store.add(png("one more")));
    store.remove(store.all().back().id);
    { const std::jthread one(fill), other(fill); }
    EXPECT_THAT(store.all(), SizeIs(SignatureStore::maximum));
}

}  // namespace
}  // namespace tamble
