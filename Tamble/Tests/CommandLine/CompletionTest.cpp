#include "Program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

/// What bash answers at the end of the line.
std::string bashAnswers(const Home& home, const std::string& line) {
    const Finished run = home.shell("source <(" TAMBLE_PROGRAM
                                    " completion bash)\n"
                                    "COMP_LINE='" +
                                    line +
                                    "' COMP_POINT=${#COMP_LINE}\n"
                                    "read -r -a COMP_WORDS <<<\"$COMP_LINE\"\n"
                                    "[[ $COMP_LINE == *' ' ]] && COMP_WORDS+=('')\n"
                                    "COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n"
                                    "_tamble && echo \"${COMPREPLY[*]}\"");
    EXPECT_EQ(run.errors, "");
    return run.output.empty() ? run.output : run.output.substr(0, run.output.size() - 1);
}

TEST(Completion, BashAnswersWords) {
    const Home home;
    EXPECT_EQ(bashAnswers(home, "tamble image.conv"), "image.convert");
    EXPECT_EQ(bashAnswers(home, "tamble un"), "undo");
    EXPECT_EQ(bashAnswers(home, "tamble completion "), "bash zsh fish");
    EXPECT_EQ(bashAnswers(home, "tamble image.convert --qual"), "--quality");
    EXPECT_EQ(bashAnswers(home, "tamble image.convert --no-remove-l"), "--no-remove-location");
    EXPECT_EQ(bashAnswers(home, "tamble image.convert --to "), "webp jpeg png heic tiff gif avif");
    EXPECT_EQ(bashAnswers(home, "tamble image.convert --to=we"), "webp");
    EXPECT_EQ(bashAnswers(home, "tamble image.convert a.jpg --clash s"), "skip");
    // Bash replaces only what stands behind the colon.
    EXPECT_EQ(bashAnswers(home, "tamble image.convert --output convert:we"), "webp");
    EXPECT_EQ(bashAnswers(home, "tamble image.convert --save "), "next replace");
    EXPECT_EQ(bashAnswers(home, "tamble image.convert b"), "");
    EXPECT_EQ(bashAnswers(home, "tamble files.rename --num"), "--numbering");
    EXPECT_EQ(bashAnswers(home, "tamble files.rename --letter-case t"), "title");
    EXPECT_EQ(bashAnswers(home, "tamble files.rename --in"), "--in-place");
    EXPECT_EQ(bashAnswers(home, "tamble estimate image.conv"), "image.convert");
    EXPECT_EQ(bashAnswers(home, "tamble estimate image.convert --to we"), "webp");
}

TEST(Completion, EveryShellReadsItsScript) {
    const Home home;
    for (const std::string shell : {"bash", "zsh", "fish"}) {
        const Finished run =
            home.shell(TAMBLE_PROGRAM " completion " + shell + " > script && if command -v " + shell +
                       " > /dev/null; then " + shell + " -n script; fi");
        EXPECT_EQ(run.status, 0) << shell << ": " << run.errors;
        EXPECT_EQ(run.errors, "") << shell;
    }
}

TEST(Completion, FishAnswersWords) {
    const Home home;
    if (home.shell("command -v fish").status != 0) GTEST_SKIP() << "fish is not installed";
    const auto answers = [&home](const std::string& line) {
        return home
            .shell("mkdir -p bin && ln -sf " TAMBLE_PROGRAM
                   " bin/ && PATH=$PWD/bin:$PATH fish -c 'tamble "
                   "completion fish | source; complete -C \"" +
                   line + "\"'")
            .output;
    };
    EXPECT_THAT(answers("tamble image.conv"), HasSubstr("image.convert\t"));
    EXPECT_THAT(answers("tamble image.convert --to "), AllOf(HasSubstr("webp"), HasSubstr("avif")));
    EXPECT_THAT(answers("tamble image.convert --qual"), HasSubstr("--quality"));
}

TEST(ManPage, HasNoFaultAndNamesEveryOption) {
    const Home home;
    if (home.shell("command -v groff").status != 0) GTEST_SKIP() << "groff is not installed";
    const Finished run = home.shell(TAMBLE_PROGRAM " man | groff -man -ww -Tutf8 -Kutf8 -P-cbu");
    EXPECT_EQ(run.errors, "");
    EXPECT_THAT(run.output,
                AllOf(HasSubstr("tamble undo [ID]"), HasSubstr("--to webp"), HasSubstr("EXIT STATUS"),
                      HasSubstr("--save next|replace|DIR"), HasSubstr("image.removeBackground"),
                      HasSubstr("--letter-case unchanged|lower|upper|title"), HasSubstr("--in-place")));
}

}  // namespace
}  // namespace tamble::test
