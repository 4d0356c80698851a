#include <TambleCore/Platform/ChildProgram.h>
#include <TambleCore/Support/WorkContext.h>

#include <array>
#include <csignal>
#include <fstream>
#include <memory>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble {
namespace {

using testing::HasSubstr;

std::string everythingFrom(ChildProgram& child) {
    std::string output(100'000, '\0');
    output.resize(child.read({reinterpret_cast<std::uint8_t*>(output.data()), output.size()}));
    return output;
}

std::string outputOf(const ChildCommand& command) {
    ChildProgram child(command, {});
    std::string output = everythingFrom(child);
    child.finish();
    return output;
}

/// Why it failed, and what it is reported to have said.
std::pair<ChildFailed::Reason, std::string> failureOf(const ChildCommand& command) {
    try {
        outputOf(command);
    } catch (const ChildFailed& failed) {
        return {failed.reason(), failed.what()};
    }
    throw std::logic_error("It did not fail.");
}

ChildCommand script(std::string text) {
    return {.program = "sh", .arguments = {"-c", std::move(text)}};
}

/// Starts a script that says its number first.
std::pair<std::unique_ptr<ChildProgram>, pid_t> started(const std::string& rest, std::stop_token stop = {}) {
    auto child = std::make_unique<ChildProgram>(script("printf '%9d' $$; " + rest), std::move(stop));
    std::string number(9, '\0');
    child->read({reinterpret_cast<std::uint8_t*>(number.data()), number.size()});
    return {std::move(child), std::stoi(number)};
}

bool lives(pid_t process) {
    return ::kill(process, 0) == 0;
}

TEST(ChildProgram, ArgumentsArriveAsTheyAre) {
    EXPECT_EQ(outputOf({.program = "printf", .arguments = {"%s|", "a b", "$(id)", "", "*", "-n"}}),
              "a b|$(id)||*|-n|");
}

TEST(ChildProgram, ItHasNothingButWhatItIsHanded) {
    const FileDescriptor stray(::open("/dev/zero", O_RDONLY));
    const FileDescriptor handed(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    ::setenv("TAMBLE_TEST_SECRET", "secret", 1);
    auto command = script("for n in 0 3 4 5 6 7 8 9 10 20; do readlink /proc/self/fd/$n; done; env");
    command.files = {handed.number()};
    const std::string output = outputOf(command);
    ::unsetenv("TAMBLE_TEST_SECRET");
    EXPECT_THAT(output, testing::StartsWith("/dev/null\n/dev/null\n"));
    EXPECT_THAT(output, testing::Not(HasSubstr("/dev/zero")));
    EXPECT_THAT(output, testing::Not(HasSubstr("SECRET")));
}

TEST(ChildProgram, MuchOutputComesWhole) {
    ChildProgram child({.program = "head", .arguments = {"-c", "5000000", "/dev/zero"}}, {});
    std::vector<std::uint8_t> bytes(6'000'000);
    EXPECT_EQ(child.read(bytes), 5'000'000U);
    child.finish();
    // What nobody reads does not keep it from ending well.
    ChildProgram unread({.program = "head", .arguments = {"-c", "5000000", "/dev/zero"}}, {});
    unread.finish();
}

TEST(ChildProgram, FailuresSayHowItEnded) {
    using Reason = ChildFailed::Reason;
    EXPECT_EQ(failureOf({.program = "no-such-program", .arguments = {}}).first, Reason::missing);
    const auto left = failureOf(script("echo broken pipes >&2; exit 3"));
    EXPECT_EQ(left.first, Reason::misbehaved);
    EXPECT_THAT(left.second, testing::AllOf(HasSubstr("status 3"), HasSubstr("broken pipes")));
    EXPECT_THAT(failureOf(script("kill -SEGV $$")).second, HasSubstr("SIGSEGV"));
    // However much it complains.
    EXPECT_LT(failureOf(script("head -c 1000000 /dev/zero | tr '\\0' x >&2; exit 1")).second.size(), 10'000U);
}

TEST(ChildProgram, WhoeverIsStuckIsGivenUp) {
    for (const char* text : {"sleep 1000", "while :; do :; done", "exec >&-; exec sleep 1000"}) {
        auto command = script(text);
        command.patience = std::chrono::milliseconds(200);
        EXPECT_EQ(failureOf(command).first, ChildFailed::Reason::stuck) << text;
    }
}

TEST(ChildProgram, LimitsHold) {
    auto command = script("ulimit -d; ulimit -t; ulimit -c");
    command.memory = std::uint64_t{64} << 20U;
    command.processor = std::chrono::seconds(7);
    EXPECT_EQ(outputOf(command), "65536\n7\n0\n");
}

TEST(ChildProgram, AStopRequestEndsTheWaiting) {
    std::stop_source source;
    auto [child, process] = started("exec sleep 1000", source.get_token());
    const std::jthread stopping([&source] { source.request_stop(); });
    std::uint8_t byte = 0;
    EXPECT_THROW(child->read({&byte, 1}), Cancelled);
    EXPECT_THROW(child->finish(), Cancelled);
    EXPECT_TRUE(lives(process));
    child.reset();
    EXPECT_FALSE(lives(process));
}

TEST(ChildProgram, DiesWithTheProcessThatStartedIt) {
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe2(pipe.data(), O_CLOEXEC), 0);
    const pid_t parent = ::fork();
    if (parent == 0) {
        const auto [child, process] = started("exec sleep 1000");
        [[maybe_unused]] const auto written = ::write(pipe[1], &process, sizeof process);
        ::raise(SIGKILL);
    }
    pid_t process = 0;
    ASSERT_EQ(::read(pipe[0], &process, sizeof process), static_cast<ssize_t>(sizeof process));
    ::waitpid(parent, nullptr, 0);
    ::close(pipe[0]);
    ::close(pipe[1]);
    // It ends some time after its parent, and may stay a zombie where nobody waits for orphans.
    std::string state;
    for (int look = 0; look < 1000; ++look) {
        state.clear();
        std::ifstream("/proc/" + std::to_string(process) + "/stat") >> state >> state >> state;
        if (state.empty() || state == "Z") break;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_TRUE(state.empty() || state == "Z") << state;
}

}  // namespace
}  // namespace tamble
