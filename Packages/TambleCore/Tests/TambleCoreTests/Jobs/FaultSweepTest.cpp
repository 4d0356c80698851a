#include <algorithm>
#include <optional>
#include <set>

#include <TambleCoreTests/Jobs/TestProcessors.h>
#include <TambleCoreTests/Platform/MountedVolume.h>

namespace tamble {
namespace {

using std::filesystem::path;

/// Writes into a file, or where a folder is asked for, into a file deep inside it.
void writeOutput(const InputFile& file, const path& destination) {
    const bool isFolder = destination.extension().empty();
    if (isFolder) std::filesystem::create_directories(destination / "inner");
    std::ofstream(isFolder ? destination / "inner/page.png" : destination, std::ios::binary)
        << "made of " << contentOf(file.url);
}

std::string contentOfOutput(const path& output) {
    return contentOf(namesFolder(output) ? output / "inner/page.png" : output);
}

struct FirstOfAll final : FileCombiner {
    std::string fileExtension() const override { return "txt"; }
    std::string outputName(std::span<const InputFile>) const override { return "all.txt"; }
    void combine(std::span<const InputFile> files, const path& destination,
                 const WorkContext&) const override {
        writeOutput(files.front(), destination);
    }
};

struct Job {
    std::vector<InputFile> files;
    JobConfiguration configuration;
    bool writesFolders = false;
    bool combines = false;

    JobResult run(const std::shared_ptr<FileOperations>& fileOps) const {
        if (combines) return engineWith(fileOps).runCombined(files, FirstOfAll(), configuration);
        TestProcessor processor;
        if (writesFolders) {
            processor.name = [](const InputFile& file) { return FileNames::stem(file.url) + "/"; };
        }
        processor.work = [](const InputFile& file, const path& destination, const WorkContext&) {
            writeOutput(file, destination);
        };
        return engineWith(fileOps).run(files, processor, configuration);
    }
};

/// What stands on disk before a job of some shape.
struct Scene {
    TestFolder folder;
    std::optional<MountedVolume> volume;

    InputFile file(const std::string& name) const { return looseFile(folder.write(name, "old " + name)); }
    bool mount(const path& parent, const char* name) {
        volume.emplace(parent, "size=4m,mode=0700", name);
        return static_cast<bool>(*volume);
    }
};

struct Shape {
    const char* name;
    /// Empty where the system does not allow what the shape takes.
    std::optional<Job> (*prepare)(Scene& scene);

    friend void PrintTo(const Shape& shape, std::ostream* text) { *text << shape.name; }
};

std::optional<Job> nextTo(Scene& scene, ClashPolicy policy) {
    scene.file("a.webp");
    scene.file("B.WEBP");
    return Job{.files = {scene.file("a.png"), scene.file("b.png"), scene.file("c.png")},
               .configuration = {.clashPolicy = policy}};
}

std::optional<Job> replacing(Scene& scene, ClashPolicy policy) {
    scene.file("b.webp");
    return Job{.files = {scene.file("a.webp"), scene.file("b.png"), scene.file("c.png")},
               .configuration = {.location = location::ReplaceOriginals{}, .clashPolicy = policy}};
}

const Shape shapes[] = {
    {"NextAddingNumbers", [](Scene& scene) { return nextTo(scene, ClashPolicy::addNumber); }},
    {"NextSkipping", [](Scene& scene) { return nextTo(scene, ClashPolicy::skip); }},
    {"NextReplacing", [](Scene& scene) { return nextTo(scene, ClashPolicy::replace); }},
    {"ReplacingOriginals", [](Scene& scene) { return replacing(scene, ClashPolicy::addNumber); }},
    {"ReplacingOriginalsAndClashes", [](Scene& scene) { return replacing(scene, ClashPolicy::replace); }},
    {"KeepingStructure",
     [](Scene& scene) -> std::optional<Job> {
         Job job{.files = {scene.file("trip/a.png"), scene.file("trip/Rome/day 1/b.png")},
                 .configuration = {.location = location::Folder{scene.folder.files() / "out/today", true},
                                   .clashPolicy = ClashPolicy::replace}};
         scene.file("out/today/trip/a.webp");
         for (InputFile& file : job.files) {
             file.root = scene.folder.files() / "trip";
             file.relativeFolder = file.url.parent_path() == file.root ? "" : "Rome/day 1";
             file.isLoose = false;
         }
         return job;
     }},
    {"Combining",
     [](Scene& scene) -> std::optional<Job> {
         return Job{.files = {scene.file("a.txt"), scene.file("b.txt")},
                    .configuration = {.location = location::Folder{scene.folder.files() / "new/out"}},
                    .combines = true};
     }},
    {"CombiningOverAnother",
     [](Scene& scene) -> std::optional<Job> {
         scene.file("all.txt");
         return Job{.files = {scene.file("a.txt"), scene.file("b.txt")},
                    .configuration = {.clashPolicy = ClashPolicy::replace},
                    .combines = true};
     }},
    {"MakingFolders",
     [](Scene& scene) -> std::optional<Job> {
         scene.file("a/inner/mine.txt");
         return Job{.files = {scene.file("a.pdf"), scene.file("b.pdf")},
                    .configuration = {.clashPolicy = ClashPolicy::replace},
                    .writesFolders = true};
     }},
    {"TwoVolumes",
     [](Scene& scene) -> std::optional<Job> {
         if (!scene.mount(scene.folder.files(), "volume")) return std::nullopt;
         return Job{.files = {scene.file("volume/a.webp"), scene.file("b.png"), scene.file("volume/c.png")},
                    .configuration = {.location = location::ReplaceOriginals{}}};
     }},
    {"ABinOnAnotherVolume",
     [](Scene& scene) -> std::optional<Job> {
         if (!scene.mount(scene.folder.bin(), "files")) return std::nullopt;
         scene.file("b/inner/mine.txt");
         return Job{
             .files = {scene.file("a.pdf"), scene.file("b.pdf")},
             .configuration = {.location = location::ReplaceOriginals{}, .clashPolicy = ClashPolicy::replace},
             .writesFolders = true};
     }},
};

/// How a call fails: before it did anything, having done it, or before it did anything and so does every call
/// after it, as on a disk that died.
enum class Fault { instead, afterwards, everSince };

const char* nameOf(Fault fault) {
    switch (fault) {
        case Fault::instead:
            return "Instead";
        case Fault::afterwards:
            return "Afterwards";
        case Fault::everSince:
            break;
    }
    return "EverSince";
}

void PrintTo(Fault fault, std::ostream* text) {
    *text << nameOf(fault);
}

/// Fails the Nth call.
struct FaultyOperations {
    std::shared_ptr<TestFileOperations> fileOps = std::make_shared<TestFileOperations>();
    int calls = 0;
    int faulty;
    std::string failed;

    FaultyOperations(Fault fault, int which) : faulty(which) {
        fileOps->before = [this, fault](const std::string& step, const path& item) {
            if (++calls < faulty) return;
            if (calls == faulty)
                failed = fmt::format("call {}: {} {}", calls, step, item.filename().native());
            const bool isMeant = calls == faulty || fault == Fault::everSince;
            if (fault != Fault::afterwards && isMeant) throw TestFileOperations::fault();
        };
        fileOps->after = [this] {
            if (calls == faulty) throw TestFileOperations::fault();
        };
    }
    bool hasFired() const { return calls >= faulty; }
};

/// The regular files below the folder with what they hold; Bins apart.
std::map<path, std::string> filesIn(const path& folder) {
    std::map<path, std::string> files;
    for (std::filesystem::recursive_directory_iterator entry(folder), end; entry != end; ++entry) {
        if (entry->path().filename().native().starts_with(".Trash")) entry.disable_recursion_pending();
        if (entry->is_regular_file()) files[entry->path()] = contentOf(entry->path());
    }
    return files;
}

bool isAtOrBelow(const path& place, const path& folder) {
    const path plain = standardized(folder);
    return std::mismatch(plain.begin(), plain.end(), place.begin(), place.end()).first == plain.end();
}

class FaultSweep : public testing::TestWithParam<std::tuple<Shape, Fault>> {
  protected:
    Fault fault() const { return std::get<Fault>(GetParam()); }

    /// Runs `check` on a fresh scene for every N, until a run passes without the fault having fired.
    template <typename Check>
    void sweep(const Check& check) const {
        for (int faulty = 1;; ++faulty) {
            Scene scene;
            const auto job = std::get<Shape>(GetParam()).prepare(scene);
            if (!job) GTEST_SKIP() << "mounting takes more rights";
            FaultyOperations operations(fault(), faulty);
            check(scene, *job, operations);
            if (HasFatalFailure()) return;
            if (operations.hasFired()) continue;
            EXPECT_GT(faulty, 1) << "the shape changes something";
            return;
        }
    }

    static UndoReport undo(const JobResult& result) {
        SystemFileOperations real;
        return apply(result.undo, real);
    }

    /// At its place, or in the Bin and recorded.
    static bool isKept(const path& file, const std::string& content, const UndoRecord& record) {
        for (const TrashedItem& item : record.trashedItems) {
            if (!isAtOrBelow(file, item.original)) continue;
            const path inside = file.lexically_relative(standardized(item.original));
            if (contentOf(inside == "." ? item.inTrash.path() : item.inTrash.path() / inside) == content) return true;
        }
        return contentOf(file) == content;
    }

    static void expectBinIsEmpty(const Scene& scene) {
        std::vector<path> bins{scene.folder.bin()};
        if (scene.volume) bins.push_back(scene.volume->top() / (".Trash-" + std::to_string(::getuid())));
        for (const path& bin : bins) EXPECT_EQ(namesIn(bin / "files") + namesIn(bin / "info"), "");
    }

    static void expectNothingUnfinished(const Scene& scene) {
        EXPECT_EQ(namesIn(scene.folder.staging()), "");
        std::vector<path> places{scene.folder.files(), scene.folder.bin()};
        for (const path& place : places) {
            if (!std::filesystem::exists(place)) continue;
            for (const auto& entry : std::filesystem::recursive_directory_iterator(place)) {
                EXPECT_FALSE(entry.path().filename().native().starts_with(".Tamble")) << entry.path();
            }
        }
    }

    /// Every outcome is what stands on disk, and nothing stands there without one.
    static void expectTruth(const Job& job, const JobResult& result,
                            const std::map<path, std::string>& before,
                            const std::map<path, std::string>& after) {
        std::set<path> saved;
        for (std::size_t i = 0; i < job.files.size(); ++i) {
            const ItemOutcome& itemOutcome = result.items[i].outcome;
            const path& input = job.files[i].url;
            if (const auto* done = std::get_if<outcome::Done>(&itemOutcome)) {
                EXPECT_EQ(contentOfOutput(done->value),
                          "made of " + before.at(job.combines ? job.files.front().url.path() : input));
                saved.insert(done->value);
            } else if (brief(itemOutcome) != "saving failed cannotSaveOriginalInBin") {
                EXPECT_EQ(contentOf(input), before.at(input)) << brief(itemOutcome);
            }
        }
        EXPECT_EQ(saved, std::set<path>(result.undo.createdFiles.begin(), result.undo.createdFiles.end()));
        for (const auto& [file, content] : after) {
            const bool isOutput = std::ranges::any_of(
                saved, [&, &place = file](const path& output) { return isAtOrBelow(place, output); });
            const auto old = before.find(file);
            EXPECT_TRUE(isOutput || (old != before.end() && old->second == content)) << file;
        }
    }
};

TEST_P(FaultSweep, OfAJobLosesNothingAndTellsTheTruth) {
    std::string outcomesWithoutFault;
    {
        Scene scene;
        const auto job = std::get<Shape>(GetParam()).prepare(scene);
        if (!job) GTEST_SKIP() << "mounting takes more rights";
        outcomesWithoutFault = brief(job->run(std::make_shared<SystemFileOperations>()));
    }
    sweep([&](const Scene& scene, const Job& job, FaultyOperations& faulty) {
        const auto tree = snapshot(scene.folder.files());
        const auto before = filesIn(scene.folder.files());
        const JobResult result = job.run(faulty.fileOps);
        SCOPED_TRACE(faulty.failed + ": " + brief(result));
        for (const auto& [file, content] : before) EXPECT_TRUE(isKept(file, content, result.undo)) << file;
        expectTruth(job, result, before, filesIn(scene.folder.files()));
        expectNothingUnfinished(scene);
        // What happened all the same counts as done, and a fault costs one item.
        if (!faulty.hasFired() || fault() == Fault::afterwards) {
            EXPECT_EQ(brief(result), outcomesWithoutFault);
        } else if (!job.combines && fault() == Fault::instead) {
            EXPECT_LE(std::ranges::count_if(result.items,
                                            [](const ItemResult& item) {
                                                return std::holds_alternative<outcome::Failed>(item.outcome);
                                            }),
                      1);
        }
        const UndoReport report = undo(result);
        EXPECT_EQ(report.problems + report.keptBecauseChanged, 0);
        expectBinIsEmpty(scene);
        if (scene.volume) {
            std::filesystem::remove_all(scene.volume->top() / (".Trash-" + std::to_string(::getuid())));
        }
        ASSERT_EQ(snapshot(scene.folder.files()), tree);
    });
}

TEST_P(FaultSweep, OfAnUndoLosesNothingAndIsReported) {
    sweep([&](const Scene& scene, const Job& job, FaultyOperations& faulty) {
        const auto tree = snapshot(scene.folder.files());
        const auto before = filesIn(scene.folder.files());
        const JobResult result = job.run(std::make_shared<SystemFileOperations>());
        const auto saved = filesIn(scene.folder.files());
        const UndoReport report = apply(result.undo, *faulty.fileOps);
        SCOPED_TRACE(faulty.failed);
        for (const auto& [file, content] : before) EXPECT_TRUE(isKept(file, content, result.undo)) << file;
        for (const auto& [file, content] : filesIn(scene.folder.files())) {
            const auto asBefore = before.find(file), asSaved = saved.find(file);
            EXPECT_TRUE((asBefore != before.end() && asBefore->second == content) ||
                        (asSaved != saved.end() && asSaved->second == content))
                << file;
        }
        const bool isHarmed = faulty.hasFired() && fault() != Fault::afterwards;
        EXPECT_EQ(report.problems > 0, isHarmed);
        EXPECT_EQ(report.keptBecauseChanged, 0);
        // The next try goes on where this one failed.
        if (isHarmed) undo(result);
        expectBinIsEmpty(scene);
        if (scene.volume) {
            std::filesystem::remove_all(scene.volume->top() / (".Trash-" + std::to_string(::getuid())));
        }
        ASSERT_EQ(snapshot(scene.folder.files()), tree);
    });
}

INSTANTIATE_TEST_SUITE_P(, FaultSweep,
                         testing::Combine(testing::ValuesIn(shapes),
                                          testing::Values(Fault::instead, Fault::afterwards,
                                                          Fault::everSince)),
                         [](const auto& parameters) {
                             return std::string(std::get<Shape>(parameters.param).name) +
                                    nameOf(std::get<Fault>(parameters.param));
                         });

}  // namespace
}  // namespace tamble
