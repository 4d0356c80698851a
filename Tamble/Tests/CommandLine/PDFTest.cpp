#include <TambleCore/Support/Json/Json.h>

#include <fstream>
#include <set>
#include <sstream>

#include "Program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// Every byte that the program keeps for itself.
std::string kept(const Home& home) {
    std::ostringstream all;
    for (const auto& entry : fs::recursive_directory_iterator(home.data())) {
        if (entry.is_regular_file()) all << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    }
    return all.str();
}

TEST(PDF, ASplitFolderIsPlannedMadeAndTakenBack) {
    const Home home;
    home.addFile("report.pdf", pdfDocument(10));
    const auto before = home.contents();
    const Finished dry =
        home.tamble({"pdf.split", "--split", "ranges:1-3,5,8-10", "--dry-run", "report.pdf"});
    EXPECT_EQ(dry.status, 0) << dry.errors;
    EXPECT_EQ(home.contents(), before);
    const Finished run = home.tamble({"pdf.split", "--split", "ranges:1-3,5,8-10", "report.pdf"});
    EXPECT_EQ(run.status, 0) << run.errors;
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(home.folder())) {
        if (entry.is_regular_file()) names.insert(entry.path().filename().native());
    }
    EXPECT_THAT(names, testing::ElementsAre("report 1, pages 1-3.pdf", "report 2, page 5.pdf",
                                            "report 3, pages 8-10.pdf", "report.pdf"));
    EXPECT_EQ(home.tamble({"undo"}).status, 0);
    EXPECT_EQ(home.contents(), before);
}

TEST(PDF, PageNumbersThatDoNotFitFailTheirDocumentOnly) {
    const Home home;
    home.addFile("long.pdf", pdfDocument(5));
    home.addFile("short.pdf", pdfDocument(2));
    const Finished run =
        home.tamble({"pdf.deletePages", "--delete", "2,4-5", "--save", "out", "long.pdf", "short.pdf"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, AllOf(HasSubstr("short.pdf: Those page numbers don't fit this PDF."),
                                  Not(HasSubstr("long.pdf:"))));
    EXPECT_TRUE(fs::exists(home.folder() / "out/long.pdf"));
    EXPECT_FALSE(fs::exists(home.folder() / "out/short.pdf"));
    EXPECT_EQ(home.tamble({"pdf.organize", "--pages", "2:90,1", "--save", "turned", "short.pdf"}).status, 0);
    EXPECT_EQ(home.tamble({"pdf.extractPages", "--take", "1", "--save", "taken", "long.pdf"}).status, 0);
    EXPECT_EQ(home.tamble({"pdf.merge", "long.pdf", "short.pdf"}).status, 0);
    EXPECT_TRUE(fs::exists(home.folder() / "long combined.pdf"));
}

TEST(PDF, APasswordIsSeenNowhere) {
    const Home home;
    home.addFile("a.pdf", pdfDocument(1));
    const std::string password = "correct-horse-battery";
    home.addFile("word", password + "\nsecond line\n");
    std::string arguments;
    const Finished added =
        home.tamble({"pdf.addPassword", "--password-file", "word", "--save", "locked", "a.pdf"}, {},
                    [&](pid_t) { arguments = home.shell("ps -ewwo args").output; });
    EXPECT_EQ(added.status, 0) << added.errors;
    EXPECT_THAT(arguments, Not(HasSubstr(password)));
    const Finished shown = home.tamble(
        {"pdf.removePassword", "--password-file", "-", "--save", "open", "--json", "locked/a.pdf"},
        password + "\r\n");
    EXPECT_EQ(shown.status, 0) << shown.errors;
    EXPECT_TRUE(fs::exists(home.folder() / "open/a.pdf"));
    const Finished wrong = home.tamble(
        {"pdf.removePassword", "--password-file", "-", "--save", "wrong", "locked/a.pdf"}, "no\n");
    EXPECT_EQ(wrong.status, 1);
    EXPECT_THAT(wrong.errors, HasSubstr("That password didn't open this PDF."));
    const Finished none =
        home.tamble({"pdf.removePassword", "--password-file", "word", "--save", "none", "a.pdf"});
    EXPECT_THAT(none.output + none.errors, HasSubstr("This PDF doesn't have a password"));
    for (const std::string& said :
         {added.output, added.errors, shown.output, shown.errors, wrong.errors, kept(home)})
        EXPECT_THAT(said, Not(HasSubstr(password)));
    const Finished tooShort =
        home.tamble({"pdf.addPassword", "--password-file", "-", "--save", "s", "a.pdf"}, "abc\n");
    EXPECT_EQ(tooShort.status, 1);
    EXPECT_THAT(tooShort.errors, HasSubstr("Type a password (at least 4 characters)"));
    // Never on the command line itself.
    EXPECT_NE(home.tamble({"pdf.addPassword", "--password", password, "a.pdf"}).status, 0);
}

}  // namespace
}  // namespace tamble::test
