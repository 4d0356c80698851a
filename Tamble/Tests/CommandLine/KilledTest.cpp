#include <csignal>
#include <thread>

#include "Program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble::test {
namespace {

namespace fs = std::filesystem;

/// Waits until the journal of a job is there, and then so long.
void waitForSaving(const fs::path& data, std::chrono::microseconds then) {
    const auto hasJournal = [&] {
        std::error_code error;
        return fs::directory_iterator(data / "journal", error) != fs::directory_iterator();
    };
    const auto giveUp = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!hasJournal() && std::chrono::steady_clock::now() < giveUp) std::this_thread::yield();
    std::this_thread::sleep_for(then);
}

TEST(Killed, WhileItReplacesOriginalsNothingIsLost) {
    const Home home;
    for (int i = 0; i < 60; ++i) home.addPicture("Photos/" + std::to_string(i) + ".bmp", 8, 8);
    const auto before = home.contents();
    int interruptions = 0;
    for (int attempt = 0; attempt < 12; ++attempt) {
        SCOPED_TRACE(attempt);
        home.tamble({"image.convert", "--to", "png", "--save", "replace", "--clash", "replace", "Photos"}, {},
                    [&](pid_t program) {
                        waitForSaving(home.data(), std::chrono::microseconds(400 * attempt));
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
