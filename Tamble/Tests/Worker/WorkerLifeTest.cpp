#include <TambleCore/Support/Log.h>

#include <csignal>
#include <thread>

#include "IsolationTest.h"
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// The running processes whose parent is `parent`.
std::vector<pid_t> childrenOf(pid_t parent) {
    std::vector<pid_t> children;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        std::ifstream stream(entry.path() / "stat");
        std::string text;
        std::getline(stream, text);
        const auto nameEnd = text.rfind(')');
        if (nameEnd == std::string::npos) continue;
        std::istringstream rest(text.substr(nameEnd + 1));
        std::string state;
        pid_t itsParent = 0;
        rest >> state >> itsParent;
        if (itsParent == parent && state != "Z") children.push_back(std::stoi(entry.path().filename()));
    }
    return children;
}

/// Whether all threads of the child have ended; it is not waited for.
bool hasEnded(pid_t child) {
    siginfo_t information{};
    return ::waitid(P_PID, static_cast<id_t>(child), &information, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           information.si_pid == child;
}

bool eventually(const std::function<bool()>& condition) {
    for (const auto until = Clock::now() + 10s; Clock::now() < until; std::this_thread::sleep_for(5ms)) {
        if (condition()) return true;
    }
    return false;
}

TEST_F(IsolationTest, WorkersAreUsedAgainAndEndWithThePool) {
    auto shared = std::make_shared<WorkerPool>(limits_, MISBEHAVING_WORKER);
    EXPECT_THAT(childrenOf(::getpid()), testing::IsEmpty());
    auto work = isolatedWork(*misbehavingTool("test.each"), encodeJson(MisbehavingSettings{}), {}, shared);
    const auto& processor = *std::get<std::unique_ptr<FileProcessor>>(work);
    EXPECT_EQ(outcomeOf(processor, input("a"), staging() / "a"), "done");
    const auto first = childrenOf(::getpid());
    EXPECT_EQ(first.size(), 1U);
    EXPECT_EQ(outcomeOf(processor, input("b"), staging() / "b"), "done");
    EXPECT_EQ(childrenOf(::getpid()), first);

    // One that dies between two items costs nothing.
    ::kill(first.front(), SIGKILL);
    EXPECT_TRUE(eventually([&] { return hasEnded(first.front()); }));
    EXPECT_EQ(outcomeOf(processor, input("c"), staging() / "c"), "done");

    work = {};
    shared.reset();
    EXPECT_THAT(childrenOf(::getpid()), testing::IsEmpty());
}

TEST_F(IsolationTest, WorkersHaveTheEnvironmentOfTheirPool) {
    ::setenv("TAMBLE_TEST_VARIABLE", "the program's", 1);
    const auto shared = std::make_shared<WorkerPool>(limits_, MISBEHAVING_WORKER);
    const auto work =
        isolatedWork(*misbehavingTool("test.each"), encodeJson(MisbehavingSettings{}), {}, shared);
    const auto& processor = *std::get<std::unique_ptr<FileProcessor>>(work);
    const auto environmentAfter = [&](Environment environment) {
        shared->setEnvironment(std::move(environment));
        EXPECT_EQ(outcomeOf(processor, input("a"), staging() / "a"), "done");
        const auto children = childrenOf(::getpid());
        EXPECT_EQ(children.size(), 1U) << "one with another environment is let go";
        std::string text = contentOf("/proc/" + std::to_string(children.front()) + "/environ");
        std::ranges::replace(text, '\0', '\n');
        return text;
    };
    EXPECT_THAT(environmentAfter({}), testing::HasSubstr("TAMBLE_TEST_VARIABLE=the program's\n"));
    const auto changed = environmentAfter({{"TAMBLE_TEST_VARIABLE", "the pool's"}, {"ANOTHER", "=too"}});
    EXPECT_THAT(changed, testing::HasSubstr("TAMBLE_TEST_VARIABLE=the pool's\n"));
    EXPECT_THAT(changed, testing::HasSubstr("\nANOTHER==too\n"));
    EXPECT_THAT(changed, testing::Not(testing::HasSubstr("the program's")));
    ::unsetenv("TAMBLE_TEST_VARIABLE");
}

TEST_F(IsolationTest, SpareWorkersWaitForCallsWithTheirPermit) {
    const auto other = folder() / "TambleStaging-2";
    std::filesystem::create_directories(other);
    const auto file = input("a");
    for (const std::size_t spare : {std::size_t{0}, std::size_t{1}}) {
        limits_.spare = spare;
        const auto shared = std::make_shared<WorkerPool>(limits_, MISBEHAVING_WORKER);
        const auto inFolder = [&](const std::filesystem::path& staging) {
            const auto work =
                isolatedWork(*misbehavingTool("test.each"), encodeJson(MisbehavingSettings{}), {}, shared);
            const auto& processor = *std::get<std::unique_ptr<FileProcessor>>(work);
            EXPECT_EQ(outcomeOf(processor, file, staging / "out"), "done");
            std::filesystem::remove(staging / "out");
            return childrenOf(::getpid());
        };
        inFolder(staging());
        const auto both = inFolder(other);
        EXPECT_EQ(both.size(), 1 + spare);
        const auto again = inFolder(staging());
        EXPECT_EQ(again == both, spare == 1);
        EXPECT_EQ(again.size(), 1 + spare);
    }
    EXPECT_THAT(childrenOf(::getpid()), testing::IsEmpty());
}

TEST_F(IsolationTest, AWorkerKilledAtWorkFailsItsItem) {
    const auto work = processor();
    std::string outcome;
    std::jthread item([&] { outcome = outcomeOf(*work, input("waitForStop.bin"), staging() / "a"); });
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(staging() / "a"); }));
    for (const pid_t worker : childrenOf(::getpid())) ::kill(worker, SIGKILL);
    item.join();
    EXPECT_EQ(outcome, "failed: testUnreadable");
    EXPECT_FALSE(std::filesystem::exists(staging() / "a"));
}

TEST_F(IsolationTest, AStopRequestReachesTheToolOrEndsTheWorker) {
    limits_.idle = limits_.processor = 1h;
    const auto work = processor();
    for (const std::string deed : {"waitForStop", "waitForever", "spinForever"}) {
        SCOPED_TRACE(deed);
        std::stop_source stop;
        Clock::time_point stoppedAt;
        const std::jthread canceller([&] {
            eventually([&] { return std::filesystem::exists(staging() / deed); });
            stoppedAt = Clock::now();
            stop.request_stop();
        });
        EXPECT_EQ(outcomeOf(*work, input(deed + ".bin"), staging() / deed, {.stop = stop.get_token()}),
                  "cancelled");
        EXPECT_LT(Clock::now() - stoppedAt, 5s);
        EXPECT_FALSE(std::filesystem::exists(staging() / deed));
        // The next item of the same worker knows nothing of it.
        EXPECT_EQ(outcomeOf(*work, input("good.bin"), staging() / "good"), "done");
    }
}

TEST_F(IsolationTest, WorkersEndWhenTheProgramDies) {
    const pid_t program = ::fork();
    if (program == 0) {
        outcomeOf(*processor(), input("waitForever.bin"), staging() / "a");
        ::_exit(0);
    }
    // Becomes the parent of the orphans, so that they can be seen.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(staging() / "a"); }));
    ASSERT_EQ(childrenOf(program).size(), 1U);
    ::kill(program, SIGKILL);
    ::waitpid(program, nullptr, 0);
    EXPECT_TRUE(eventually([] { return childrenOf(::getpid()).empty(); }));
    while (::waitpid(-1, nullptr, 0) > 0) {
    }
    ::prctl(PR_SET_CHILD_SUBREAPER, 0);
}

TEST_F(IsolationTest, WhatAWorkerSaysGoesToTheLogWithinMeasure) {
    const LogCapture log;
    testing::internal::CaptureStderr();
    EXPECT_EQ(outcomeOf(*processor(), input("complain.bin"), staging() / "a"), "done");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    const auto text = log.text();
    EXPECT_THAT(text, testing::HasSubstr("worker: A worker said: <private>\n"));
    EXPECT_LT(std::ranges::count(text, '\n'), 300);
}

TEST_F(IsolationTest, TheSandboxHolds) {
    if (::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) < 3)
        GTEST_SKIP() << "This kernel cannot confine where a process writes.";
    const auto outside = folder() / "outside";
    std::filesystem::create_directory(outside);
    std::ofstream(outside / "existing") << "untouched";
    const auto work = processor({.deed = Deed::probeSandbox, .outside = outside.native()});
    work->process(input("a.bin"), staging() / "found", {});
    EXPECT_EQ(contentOf(staging() / "found"), "");
    EXPECT_EQ(contentOf(outside / "existing"), "untouched");
}

}  // namespace
}  // namespace tamble
