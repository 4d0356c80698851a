#include <TambleCore/Platform/CheckedFileOperations.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/MoveItem.h>
#include <TambleCore/Platform/SystemFileOperations.h>

#include <algorithm>

#include <TambleCoreTests/Platform/MountedVolume.h>
#include <TambleCoreTests/Platform/SupervisedCalls.h>

namespace tamble {
namespace {

using std::filesystem::path;

template <typename Step>
std::error_code errorOf(const Step& step) {
    try {
        step();
        return {};
    } catch (const std::filesystem::filesystem_error& error) {
        return error.code();
    }
}

TEST(MoveItem, NeverOverwritesWhereTheSystemCannotRefuseTo) {
    const TestFolder folder;
    const path file = folder.write("file", "mine"), theirs = folder.write("theirs", "theirs");
    folder.write("album/inner/a", "a");
    folder.write("other/b", "b");
    std::filesystem::create_symlink("nowhere", folder.files() / "link");
    const auto before = snapshot(folder.files());
    const auto moved = [&](const path& from, const path& to) {
        std::error_code error;
        SupervisedCalls system{.refusesExclusiveRename = true};
        const bool isSupervised = system.run(
            [&] { error = errorOf([&] { moveItem(folder.files() / from, folder.files() / to); }); });
        return isSupervised ? error : std::make_error_code(std::errc::operation_not_permitted);
    };
    if (moved("file", "theirs") == std::errc::operation_not_permitted) {
        GTEST_SKIP() << "filtering calls takes more rights";
    }

    for (const auto& [from, to] :
         {std::pair("file", "theirs"), std::pair("file", "link"), std::pair("file", "other"),
          std::pair("album", "other"), std::pair("album", "theirs"), std::pair("link", "file")}) {
        EXPECT_EQ(moved(from, to), std::errc::file_exists) << from << " to " << to;
    }
    EXPECT_EQ(moved("none", "new"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(moved("file", "no/folder/new"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(snapshot(folder.files()), before) << "what held the name is gone";

    for (const auto& [from, to] :
         {std::pair("file", "new file"), std::pair("album", "new album"), std::pair("link", "new link")}) {
        EXPECT_FALSE(moved(from, to)) << from;
        EXPECT_FALSE(moved(to, from)) << from;
    }
    EXPECT_EQ(snapshot(folder.files()), before);

    const MountedVolume volume(folder.home());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    EXPECT_FALSE(moved("album", volume.top() / "album"));
    EXPECT_EQ(namesIn(volume.top()), "album") << "also across volumes";
    EXPECT_EQ(contentOf(volume.top() / "album/inner/a"), "a");
    EXPECT_EQ(moved("file", volume.top() / "album"), std::errc::file_exists);
    EXPECT_EQ(contentOf(file), "mine");
}

TEST(MoveItem, WhatChangesWhileItIsCopiedStays) {
    const TestFolder folder;
    const MountedVolume volume(folder.home());
    if (!volume) GTEST_SKIP() << "mounting takes more rights";
    for (const auto& [moving, changing] :
         {std::pair("file", "file"), std::pair("album", "album/a"), std::pair("album", "album/new")}) {
        const path from = folder.files() / moving;
        folder.write("file", "file");
        folder.write("album/a", "a");
        folder.write("album/inner/b", "b");
        SupervisedCalls system;
        // Copied by then.
        system.before = [&, &place = changing](int number) {
            if (number == SCMP_SYS(fsync)) std::ofstream(folder.files() / place, std::ios::app) << "added";
        };
        std::error_code error;
        if (!system.run([&] { error = errorOf([&] { moveItem(from, volume.top() / moving); }); })) {
            GTEST_SKIP() << "filtering calls takes more rights";
        }
        EXPECT_EQ(error, std::errc::device_or_resource_busy) << changing;
        EXPECT_EQ(namesIn(volume.top()), "");
        EXPECT_EQ(namesIn(folder.files()), "album|file");
        EXPECT_EQ(contentOf(folder.files() / "album/inner/b"), "b");
        EXPECT_THAT(contentOf(folder.files() / changing), testing::EndsWith("added"));
        std::filesystem::remove_all(folder.files());
    }
}

/// What stands at the path, to the byte.
std::map<std::string, std::string> whole(const path& item) {
    if (std::filesystem::is_directory(item)) return snapshot(item);
    return {{"", contentOf(item)}};
}

/// The Nth call of the system fails, for every N.
class SystemFaults : public testing::TestWithParam<std::tuple<bool, bool, bool>> {
  protected:
    enum class Way { toTheBin, back };
    enum class Item { file, album };

    void sweep(Way way, Item item) const {
        const auto [actsAllTheSame, refusesExclusiveRename, isAcrossVolumes] = GetParam();
        for (int faulty = 1;; ++faulty) {
            const TestFolder folder;
            std::optional<MountedVolume> volume;
            if (isAcrossVolumes) volume.emplace(folder.bin(), "size=1m,mode=0700", "files");
            if (volume && !*volume) GTEST_SKIP() << "mounting takes more rights";
            const path place = folder.files() / "item";
            if (item == Item::album) folder.write("item/a", "a");
            folder.write(item == Item::album ? "item/inner/b" : "item", std::string(10'000, 'b'));
            const auto before = whole(place);

            SystemFileOperations real;
            CheckedFileOperations fileOps(real);
            SupervisedCalls system{.refusesExclusiveRename = refusesExclusiveRename,
                                   .faulty = faulty,
                                   .actsAllTheSame = actsAllTheSame};
            path now = way == Way::toTheBin ? place : real.trash(place);
            std::string problem;
            const auto move = [&] {
                try {
                    if (way == Way::toTheBin) {
                        now = fileOps.trash(place);
                    } else {
                        fileOps.move(now, place);
                        now = place;
                    }
                } catch (const std::exception& error) {
                    problem = error.what();
                }
            };
            if (!system.run(move)) GTEST_SKIP() << "filtering calls takes more rights";
            SCOPED_TRACE(fmt::format("call {}: {}", faulty, problem));
            ASSERT_TRUE(isThere(now)) << now;
            EXPECT_EQ(whole(now), before);
            const bool isInBin = now != place;
            EXPECT_EQ(isThere(place), !isInBin) << "in one place only";
            EXPECT_EQ(fileOps.findInTrash(place), isInBin ? std::optional(now) : std::nullopt)
                << "as its note tells";
            if (HasFailure()) return;
            if (system.calls >= faulty) continue;
            EXPECT_EQ(problem, "");
            EXPECT_GT(faulty, 2);
            return;
        }
    }
};

TEST_P(SystemFaults, LeaveAnItemWholeInOnePlaceOnItsWayToTheBin) {
    sweep(Way::toTheBin, Item::file);
    sweep(Way::toTheBin, Item::album);
}

TEST_P(SystemFaults, LeaveAnItemWholeInOnePlaceOnItsWayBack) {
    sweep(Way::back, Item::file);
    sweep(Way::back, Item::album);
}

std::string nameOf(const testing::TestParamInfo<std::tuple<bool, bool, bool>>& parameters) {
    const auto& [acts, refuses, across] = parameters.param;
    return std::string(acts ? "Afterwards" : "Instead") + (refuses ? "OverPlaceholders" : "") +
           (across ? "AcrossVolumes" : "");
}

INSTANTIATE_TEST_SUITE_P(, SystemFaults, testing::Combine(testing::Bool(), testing::Bool(), testing::Bool()),
                         nameOf);

}  // namespace
}  // namespace tamble
