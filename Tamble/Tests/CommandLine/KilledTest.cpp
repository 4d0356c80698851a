#include <csignal>
#include <thread>

#include "Program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble::test {
namespace {

namespace fs = std::filesystem;

/// Waits until so many originals are in the Bin.
void waitForTrashed(const fs::path& data, std::ptrdiff_t count) {
    const auto isThere = [&] {
        std::error_code error;
        return std::distance(fs::directory_iterator(data.parent_path() / "Trash/files", error), {}) >= count;
    };
    const auto giveUp = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!isThere() && std::chrono::steady_clock::now() < giveUp) std::this_thread::yield();
}

TEST(Killed, WhileItReplacesOriginalsNothingIsLost) {
    const Home home;
    for (int i = 0; i < 60; ++i) home.addPicture("Photos/" + std::to_string(i) + ".bmp", 8, 8);
    const auto before = home.contents();
    int interruptions = 0;
    for (int attempt = 0; attempt < 8; ++attempt) {
        SCOPED_TRACE(attempt);
        home.tamble({"image.convert", "--to", "png", "--save", "replace", "--clash", "replace", "Photos"}, {},
                    [&](pid_t program) {
                        waitForTrashed(home.data(), 1 + 5 * attempt);
                        ::kill(program, SIGKILL);
                    });
        const Finished listed = home.tamble({"activity"});
        interruptions += listed.errors.find("was interrupted") == std::string::npos ? 0 : 1;
        if (home.contents() == before) continue;
        const Finished undo = home.tamble({"undo"});
        EXPECT_EQ(undo.status, 0) << undo.errors;
        ASSERT_EQ(home.contents(), before);
    }
    EXPECT_GT(interruptions, 0) << "none was killed while it saved";
    EXPECT_EQ(home.tamble({"activity"}).errors, "");
}

}  // namespace
}  // namespace tamble::test
