#include <atomic>
#include <thread>

#include "IsolationTest.h"

namespace tamble {
namespace {

TEST_F(IsolationTest, DoesTheToolsWorkElsewhereAndItsPlanningHere) {
    const auto work = processor();
    EXPECT_EQ(work->fileExtension(), "out");
    EXPECT_EQ(work->outputName({.url = "/a/b.jpg"}), "b.out");
    EXPECT_FALSE(work->canReplaceOriginals());
    EXPECT_TRUE(work->keepsModificationTime());

    double reported = 0;
    work->process(input("a.bin"), staging() / "a.out", {.progress = [&](double f) { reported = f; }});
    EXPECT_EQ(contentOf(staging() / "a.out"), "content");
    EXPECT_EQ(reported, 0.5);
}

TEST_F(IsolationTest, CombinesAndEstimates) {
    const auto& tool = *misbehavingTool("test.all");
    const auto work = std::get<std::unique_ptr<FileCombiner>>(
        isolatedWork(tool, encodeJson(MisbehavingSettings{}), {}, pool()));
    const std::vector files{input("a", "one "), input("b", "two")};
    work->combine(files, staging() / "all.out", {});
    EXPECT_EQ(contentOf(staging() / "all.out"), "one two");

    EXPECT_EQ(isolatedEstimate(tool, files, encodeJson(MisbehavingSettings{}), *pool(), {}), 2000);
    EXPECT_EQ(isolatedEstimate(tool, files, encodeJson(MisbehavingSettings{Deed::crash}), *pool(), {}),
              std::nullopt);
}

TEST_F(IsolationTest, ExceptionsComeBackAsWhatTheyWere) {
    const auto work = processor();
    EXPECT_EQ(outcomeOf(*work, input("skip.bin"), staging() / "1"),
              "skipped: " + sentence(skip::AlreadyInFormat{"Test"}));
    try {
        work->process(input("fail.bin"), staging() / "2", {});
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), "testCode");
        EXPECT_EQ(failure.sentence(), "A sentence for people.");
        EXPECT_EQ(failure.detail(), "a detail");
    }
    try {
        work->process(input("failWithSystemError.bin"), staging() / "3", {});
        FAIL();
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_space_on_device);
    }
}

TEST_F(IsolationTest, ALostWorkerCostsItsItemAndNothingElse) {
    const auto work = processor();
    for (const std::string deed :
         {"abort", "crash", "leave", "waitForever", "spinForever", "talkNonsense", "claimEndlessly"}) {
        SCOPED_TRACE(deed);
        const auto destination = staging() / deed;
        EXPECT_EQ(outcomeOf(*work, input(deed + ".bin"), destination), "failed: testUnreadable");
        EXPECT_FALSE(std::filesystem::exists(destination));
        EXPECT_EQ(outcomeOf(*work, input("good.bin"), destination), "done");
        std::filesystem::remove(destination);
    }
}

TEST_F(IsolationTest, AWorkerThatEatsMemoryIsStopped) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "Sanitizers leave no room for a memory limit.";
#endif
    const auto work = processor();
    EXPECT_EQ(outcomeOf(*work, input("eatMemory.bin"), staging() / "1"), "failed: testUnreadable");
    EXPECT_EQ(outcomeOf(*work, input("good.bin"), staging() / "2"), "done");
}

TEST_F(IsolationTest, ManyItemsOverTwoWorkersWithBadOnesAmongThem) {
    constexpr int count = 200;
    const auto work = processor();
    std::vector<InputFile> files;
    for (int i = 0; i < count; ++i) {
        std::filesystem::create_directories(staging() / std::to_string(i));
        std::filesystem::create_directories(folder() / std::to_string(i));
        files.push_back(
            input(std::to_string(i) + (i % 20 == 7 ? "/crash.bin" : "/good.bin"), std::to_string(i)));
    }
    std::atomic<int> next = 0;
    std::vector<std::string> outcomes(count);
    const auto run = [&] {
        for (int i = next++; i < count; i = next++) {
            const auto index = static_cast<std::size_t>(i);
            outcomes[index] = outcomeOf(*work, files[index], staging() / std::to_string(i) / "x.out");
        }
    };
    {
        const std::jthread other(run);
        run();
    }
    for (int i = 0; i < count; ++i) {
        const bool bad = i % 20 == 7;
        EXPECT_EQ(outcomes[static_cast<std::size_t>(i)], bad ? "failed: testUnreadable" : "done") << i;
        EXPECT_EQ(contentOf(staging() / std::to_string(i) / "x.out"), bad ? "" : std::to_string(i));
    }
}

TEST_F(IsolationTest, NamesAreBytes) {
    const auto work = processor();
    for (const std::string& name : {std::string("\xff\xfe caf\xe9"), std::string("line\nbreak"),
                                    std::string("-rf"), std::string("a%20b[0]"), std::string(255, 'n')}) {
        InputFile file = input(name, name);
        file.relativeFolder = name;
        ASSERT_EQ(outcomeOf(*work, file, staging() / name), "done") << name;
        EXPECT_EQ(contentOf(staging() / name), name);
        EXPECT_EQ(inputFile(messageOf(file)), file);
    }
}

TEST_F(IsolationTest, EachStagingFolderHasItsOwnWorkers) {
    const auto other = folder() / ".TambleStaging-2";
    std::filesystem::create_directories(other / "7");
    const auto work = processor();
    EXPECT_EQ(stagingFolder(other / "7/x.out"), other);
    EXPECT_EQ(stagingFolder("/plain/x.out"), "/plain");
    EXPECT_EQ(outcomeOf(*work, input("a"), staging() / "a.out"), "done");
    EXPECT_EQ(outcomeOf(*work, input("a"), other / "7/x.out"), "done");
    EXPECT_EQ(outcomeOf(*work, input("a"), staging() / "b.out"), "done");
    EXPECT_EQ(contentOf(other / "7/x.out"), "content");
}

TEST_F(IsolationTest, AMissingWorkerProgramIsAFailureOfItsOwn) {
    const auto absent = std::make_shared<WorkerPool>(limits_, folder() / "absent");
    const auto work = std::get<std::unique_ptr<FileProcessor>>(
        isolatedWork(*misbehavingTool("test.each"), encodeJson(MisbehavingSettings{}), {}, absent));
    EXPECT_EQ(outcomeOf(*work, input("a"), staging() / "a"), "failed: workerUnavailable");
    // One that starts but is none.
    const auto wrong = std::make_shared<WorkerPool>(limits_, "/bin/true");
    const auto other = std::get<std::unique_ptr<FileProcessor>>(
        isolatedWork(*misbehavingTool("test.each"), encodeJson(MisbehavingSettings{}), {}, wrong));
    EXPECT_EQ(outcomeOf(*other, input("a"), staging() / "a"), "failed: workerUnavailable");
}

}  // namespace
}  // namespace tamble
