#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Support/Failure.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>
#include <atomic>

#include <TambleCoreTests/Jobs/TestProcessors.h>

namespace tamble {
namespace {

using std::filesystem::path;

TEST(JobEngine, AnEmptyListIsAnEmptyResult) {
    const TestFolder folder;
    std::stop_source stopped;
    stopped.request_stop();
    const JobResult result = engineWith().run({}, TestProcessor(), {}, {}, stopped.get_token());
    EXPECT_TRUE(result.items.empty());
    EXPECT_FALSE(result.wasCancelled);
    EXPECT_TRUE(engineWith().runCombined({}, TestCombiner(), {}).items.empty());
}

TEST(JobEngine, EveryEndOfAnItemIsAnOutcome) {
    const TestFolder folder;
    std::vector<InputFile> files;
    for (const char* name : {"good", "silent", "skips", "fails", "throws", "number", "cancels", "gone"}) {
        files.push_back(looseFile(folder.write(name, name)));
    }
    std::filesystem::remove(files.back().url);
    TestProcessor processor;
    processor.work = [](const InputFile& file, const path& destination, const WorkContext&) {
        const std::string name = file.url.filename();
        if (name == "silent") return;
        if (name == "skips") throw ProcessorSkip(skip::NotSmaller{});
        if (name == "fails") throw Failure("cannotDecode", "This file can't be opened.");
        if (name == "throws") throw std::runtime_error("seven");
        if (name == "number") throw 7;
        if (name == "cancels") throw Cancelled();
        std::filesystem::copy_file(file.url, destination);
    };
    const LogCapture log;
    const JobResult result = engineWith().run(files, processor, {.maxConcurrent = 3});
    EXPECT_EQ(
        brief(result),
        "done good.webp, processing failed noOutput, skipped notSmaller, processing failed cannotDecode, "
        "processing failed unexpected, processing failed unexpected, processing failed unexpected, "
        "processing failed inputMissing");
    EXPECT_EQ(std::get<outcome::Failed>(result.items[1].outcome).value.detail,
              "Processor finished without writing a file");
    EXPECT_EQ(std::get<outcome::Failed>(result.items[3].outcome).value.detail, "This file can't be opened.");
    EXPECT_EQ(namesIn(folder.staging()), "");
    EXPECT_THAT(log.text(),
                testing::StartsWith("engine: Job started: 8 files, location <private>, clash addNumber\n"));
    EXPECT_THAT(log.text(), testing::HasSubstr("engine: Job finished: 1 saved, 1 skipped, 6 failed in "));
}

TEST(JobEngine, CancellingTheLastItemSavesNothing) {
    const TestFolder folder;
    std::vector<InputFile> files;
    for (const char* name : {"a.png", "b.png", "c.png"}) files.push_back(looseFile(folder.write(name, name)));
    const auto before = snapshot(folder.files());
    std::stop_source stop;
    TestProcessor processor;
    processor.work = [&](const InputFile& file, const path& destination, const WorkContext& context) {
        std::ofstream(destination) << "output";
        if (file.url.filename() != "c.png") return;
        stop.request_stop();
        context.throwIfStopped();
    };
    const LogCapture log;
    const JobResult result = engineWith().run(files, processor, {.maxConcurrent = 1}, {}, stop.get_token());
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_EQ(brief(result), "cancelled, cancelled, cancelled");
    EXPECT_TRUE(result.undo.isEmpty());
    EXPECT_EQ(snapshot(folder.files()), before);
    EXPECT_EQ(namesIn(folder.staging()), "");
    EXPECT_THAT(log.text(), testing::HasSubstr("engine: Job cancelled before saving; nothing was saved\n"));
}

TEST(JobEngine, WorksOnAsManyItemsAtOnceAsAskedAndReportsAll) {
    const TestFolder folder;
    std::vector<InputFile> files;
    for (int i = 0; i < 60; ++i) {
        files.push_back(looseFile(folder.write(std::to_string(i) + ".png", std::to_string(i))));
    }
    std::atomic<int> running = 0, most = 0;
    TestProcessor processor;
    processor.work = [&](const InputFile& file, const path& destination, const WorkContext& context) {
        const int now = ++running;
        for (int seen = most; now > seen && !most.compare_exchange_weak(seen, now);) {
        }
        context.report(1.7);
        std::filesystem::copy_file(file.url, destination);
        --running;
    };
    std::vector<JobProgress> sent;
    const JobResult result = engineWith().run(files, processor, {.maxConcurrent = 3},
                                              [&](const JobProgress& progress) { sent.push_back(progress); });
    EXPECT_LE(most, 3);
    for (std::size_t i = 0; i < files.size(); ++i) {
        EXPECT_EQ(result.items[i].file, files[i]) << "results keep the order of the inputs";
        EXPECT_EQ(brief(result.items[i].outcome), "done " + std::to_string(i) + ".webp");
    }
    using Phase = JobProgress::Phase;
    EXPECT_TRUE(std::ranges::is_sorted(sent, {}, [](const JobProgress& progress) { return progress.phase; }));
    EXPECT_GE(std::ranges::count(sent, Phase::processing, &JobProgress::phase), 61);
    EXPECT_GE(std::ranges::count(sent, Phase::saving, &JobProgress::phase), 2);
    EXPECT_EQ(sent.back().phase, Phase::finished);
    EXPECT_EQ(sent.back().completed, 60);
    for (const JobProgress& progress : sent) EXPECT_LE(progress.completed + progress.partial, 60.0);
}

TEST(JobEngine, CombinedInputsShareOneOutcome) {
    const TestFolder folder;
    std::vector<InputFile> files;
    for (const char* name : {"a.txt", "b.txt"}) files.push_back(looseFile(folder.write(name, name)));
    const JobConfiguration replacing{.location = location::ReplaceOriginals{},
                                     .clashPolicy = ClashPolicy::replace};
    const JobResult result = engineWith().runCombined(files, TestCombiner(), replacing);
    EXPECT_EQ(brief(result), "done a joined.txt, done a joined.txt");
    EXPECT_EQ(contentOf(folder.files() / "a joined.txt"), "a.txtb.txt");
    EXPECT_EQ(namesIn(folder.files()), "a joined.txt|a.txt|b.txt") << "combining never replaces originals";
    EXPECT_EQ(brief(engineWith().runCombined(files, TestCombiner{}, {})),
              "done a joined 2.txt, done a joined 2.txt");

    TestCombiner silent;
    silent.writes = false;
    const LogCapture log;
    const JobResult failed = engineWith().runCombined(files, silent, {});
    EXPECT_EQ(brief(failed), "processing failed noOutput, processing failed noOutput");
    EXPECT_THAT(log.text(), testing::HasSubstr("engine: Combine failed: <private>\n"));
    EXPECT_THAT(log.text(), testing::HasSubstr("engine: Combine job finished: not saved in "));
}

TEST(JobEngine, OutputsKeepPermissionsAndTime) {
    const TestFolder folder;
    const path original = folder.write("a.png", "a");
    std::filesystem::permissions(original, std::filesystem::perms(0640) | std::filesystem::perms::set_uid);
    const auto time = std::filesystem::last_write_time(original) - std::chrono::hours(1000);
    std::filesystem::last_write_time(original, time);
    TestProcessor processor;
    processor.keepsTime = true;
    ASSERT_EQ(brief(engineWith().run({looseFile(original)}, processor, {})), "done a.webp");
    EXPECT_EQ(std::filesystem::status(folder.files() / "a.webp").permissions(), std::filesystem::perms(0640));
    EXPECT_EQ(std::filesystem::last_write_time(folder.files() / "a.webp"), time);

    processor.keepsTime = false;
    processor.name = [](const InputFile&) { return "pages/"; };
    processor.work = [](const InputFile&, const path& destination, const WorkContext&) {
        std::filesystem::create_directory(destination);
        std::ofstream(destination / "1.png") << "one";
    };
    ASSERT_EQ(brief(engineWith().run({looseFile(original)}, processor, {})), "done pages/");
    EXPECT_EQ(std::filesystem::status(folder.files() / "pages").permissions(), std::filesystem::perms(0750));
    EXPECT_EQ(std::filesystem::status(folder.files() / "pages/1.png").permissions(),
              std::filesystem::perms(0640));
    EXPECT_GT(std::filesystem::last_write_time(folder.files() / "pages/1.png"), time);
}

TEST(JobEngine, OddNamesGoThroughUnharmed) {
    const TestFolder folder;
    std::string wide = "n";
    while (wide.size() < 255) wide += "é";
    const std::vector<std::string> names{"new\nline",
                                         "\n",
                                         "not\xFFtext\xC3",
                                         "-rf",
                                         "--",
                                         "shot[0]",
                                         "*?.png",
                                         " spaces ",
                                         " ",
                                         ".hidden",
                                         "..two dots",
                                         "ends.",
                                         "100%20.png",
                                         "file:",
                                         "back\\slash",
                                         "\"quoted'$(x)",
                                         "Photo.png",
                                         "photo.PNG",
                                         "caf\u00e9.png",
                                         "cafe\u0301.png",
                                         wide,
                                         std::string(251, 'n') + ".png",
                                         std::string(255, 'n')};
    std::vector<InputFile> files;
    for (const std::string& name : names) {
        files.push_back(looseFile(folder.write(name, name)));
        folder.write("out/" + name, "another " + name);
    }
    const auto before = snapshot(folder.files());
    const location::Folder out{.value = folder.files() / "out"};
    for (const auto& [place, policy] :
         {std::pair(SaveLocation(location::NextToOriginal{}), ClashPolicy::addNumber),
          std::pair(SaveLocation(location::ReplaceOriginals{}), ClashPolicy::addNumber),
          std::pair(SaveLocation(out), ClashPolicy::addNumber),
          std::pair(SaveLocation(out), ClashPolicy::replace)}) {
        const JobResult result =
            engineWith().run(files, CopyThroughProcessor(), {.location = place, .clashPolicy = policy});
        for (std::size_t i = 0; i < files.size(); ++i) {
            const auto* done = std::get_if<outcome::Done>(&result.items[i].outcome);
            ASSERT_NE(done, nullptr) << brief(result);
            EXPECT_EQ(contentOf(done->value), names[i]);
        }
        const auto stored = decodeJson<UndoRecord>(parseJson(writeJson(encodeJson(result.undo))));
        SystemFileOperations fileOps;
        for (const TrashedItem& item : stored.trashedItems) {
            EXPECT_EQ(fileOps.findInTrash(item.original), item.inTrash) << "any desktop finds it";
        }
        const UndoReport report = apply(stored, fileOps);
        EXPECT_EQ(report.removedOutputs, static_cast<int>(names.size()));
        EXPECT_EQ(report.problems + report.keptBecauseChanged, 0);
        EXPECT_EQ(snapshot(folder.files()), before);
        EXPECT_EQ(namesIn(folder.bin() / "files") + namesIn(folder.bin() / "info"), "");
        EXPECT_EQ(namesIn(folder.staging()), "");
    }
}

}  // namespace
}  // namespace tamble
