#include <csignal>
#include <fstream>
#include <thread>

#include "Program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// A program of that name that is found before the real one as long as this lives.
class Impostor {
  public:
    Impostor(const Home& home, const std::string& script) : path_(::getenv("PATH")) {
        const fs::path file = home.addFile("bin/pdftoppm", "#!/bin/sh\n" + script + "\n");
        fs::permissions(file, fs::perms::owner_all);
        ::setenv("PATH", (file.parent_path().native() + ":" + path_).c_str(), 1);
    }
    ~Impostor() { ::setenv("PATH", path_.c_str(), 1); }
    Impostor(const Impostor&) = delete;
    Impostor& operator=(const Impostor&) = delete;

  private:
    std::string path_;
};

TEST(Pages, BecomePicturesInAFolderAndAreTakenBack) {
    const Home home;
    home.addFile("report.pdf", pdfDocument(12));
    const auto before = home.contents();
    const Finished run = home.tamble({"pdf.toImages", "report.pdf", "--to", "png", "--dpi", "72"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_TRUE(fs::exists(home.folder() / "report/report 01.png"));
    EXPECT_TRUE(fs::exists(home.folder() / "report/report 12.png"));
    EXPECT_EQ(home.tamble({"undo"}).status, 0);
    EXPECT_EQ(home.contents(), before);
}

TEST(Pages, OfALockedDocumentNeedItsPasswordWhichNoProgramIsTold) {
    const Home home;
    home.addFile("a.pdf", pdfDocument(2));
    home.addFile("password", "open sesame\n");
    ASSERT_EQ(
        home.tamble({"pdf.addPassword", "a.pdf", "--save", "replace", "--password-file", "password"}).status,
        0);
    EXPECT_THAT(home.tamble({"pdf.toImages", "a.pdf"}).errors,
                HasSubstr("This PDF has a password. Type it in and try again."));
    const Impostor impostor(home,
                            "case \"$*\" in *sesame*) exit 1;; esac\n"
                            "env | grep -q sesame && exit 1\nexec /usr/bin/pdftoppm \"$@\"");
    const Finished run = home.tamble({"pdf.toImages", "a.pdf", "--password-file", "password"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_TRUE(fs::exists(home.folder() / "a/a 2.jpg"));
}

TEST(Pages, ThatCrashTheDrawingProgramFailAloneAndItWritesNowhere) {
    const Home home;
    home.addFile("one.pdf", pdfDocument(1));
    home.addFile("two.pdf", pdfDocument(2));
    // It dies over documents of two pages.
    const Impostor impostor(home,
                            "touch /proc/self/cwd/mark \"$HOME/mark\" 2>/dev/null\n"
                            "case \"$*\" in *'-l 2'*) echo P6; exit 7;; esac\nexec /usr/bin/pdftoppm \"$@\"");
    const auto before = home.contents();
    const Finished run = home.tamble({"pdf.toImages", "one.pdf", "two.pdf"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors,
                AllOf(HasSubstr("two.pdf: Couldn't draw one of the pages."), Not(HasSubstr("one.pdf:"))));
    EXPECT_TRUE(fs::exists(home.folder() / "one/one 1.jpg"));
    fs::remove_all(home.folder() / "one");
    EXPECT_EQ(home.contents(), before);
    EXPECT_FALSE(fs::exists(home.folder().parent_path() / "mark"));
}

TEST(Pages, ThatHangTheDrawingProgramEndWithTheJob) {
    const Home home;
    home.addFile("a.pdf", pdfDocument(1));
    // It cannot write its number down; it is found by the words it was started with.
    const Impostor impostor(home, "exec sleep 98765.4321");
    const auto before = home.contents();
    const auto sleepers = [&] { return home.shell("pgrep -fx 'sleep 98765.4321'").output; };
    const Finished run = home.tamble({"pdf.toImages", "a.pdf"}, "", [&](pid_t program) {
        for (int look = 0; look < 1000 && sleepers().empty(); ++look)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        ::kill(program, SIGINT);
    });
    EXPECT_NE(run.status, 0);
    for (int look = 0; look < 1000 && !sleepers().empty(); ++look)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(sleepers(), "");
    EXPECT_EQ(home.contents(), before);
}

}  // namespace
}  // namespace tamble::test
