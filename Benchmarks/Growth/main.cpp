// What the engine itself costs, step by step, as JSON. Usage: tamble-growth INPUT OUTPUT ITEMS-AT-ONCE
// The activity log is the user's own: give it a home of its own.
#include <Tamble/Model/ActivityStore.h>
#include <Tamble/Model/JobRecovery.h>

#include <TambleCore/Intake/FolderScanner.h>
#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Jobs/JobEngine.h>
#include <TambleCore/Jobs/Journal/JournalFile.h>
#include <TambleCore/Platform/SystemFileOperations.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace {

using namespace tamble;

class OneNameForAll final : public FileProcessor {
  public:
    std::string fileExtension() const override { return "jpg"; }
    std::string outputName(const InputFile&) const override { return "same.jpg"; }
    std::optional<SkipReason> skipReason(const InputFile&) const override { return std::nullopt; }
    void process(const InputFile&, const std::filesystem::path&, const WorkContext&) const override {}
    bool canReplaceOriginals() const override { return false; }
};

/// Of this program alone: getrusage(2) counts what the one that started it had at the time.
std::int64_t peakBytes() {
    std::ifstream status("/proc/self/status");
    const std::string name = "VmHWM:";
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name)) return std::stoll(line.substr(name.size())) * 1024;
    }
    return 0;
}

/// Seconds of each step, and the most memory that the program has had by its end.
class Report {
  public:
    template <typename Step>
    auto measure(const char* name, const Step& step) {
        const auto start = std::chrono::steady_clock::now();
        auto result = step();
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        report_[name] = Json{{"seconds", taken.count()}, {"peakBytes", peakBytes()}};
        return result;
    }
    void print() const { std::printf("%s\n", writeJson(report_).c_str()); }

  private:
    Json report_ = Json::object();
};

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 4) {
        std::fputs("Usage: tamble-growth INPUT OUTPUT ITEMS-AT-ONCE\n", stderr);
        return 2;
    }
    const std::array input{std::filesystem::absolute(argv[1])};
    const std::filesystem::path output = std::filesystem::absolute(argv[2]);
    const JobEngine engine{std::make_shared<SystemFileOperations>()};
    ScanOptions options(true);
    options.accepts = [](const std::optional<ContentType>&) { return true; };
    Report report;

    ScanResult scanned = report.measure("scan", [&] { return FolderScanner{options}.scan(input); });
    const std::size_t count = scanned.files.size();
    const JobConfiguration configuration{.location = location::Folder{.value = output, .keepStructure = true},
                                         .maxConcurrent = std::atoi(argv[3])};
    const journal::Job job = startedJob("image.convert", scanned.files);
    JobResult result = report.measure("copy-through job", [&] {
        const JobEngine watched{engine.fileOps, std::make_shared<JournalFile>(journalFolder(), job)};
        return watched.run(std::move(scanned.files), CopyThroughProcessor{}, configuration);
    });
    ActivityStore store(engine);
    const bool isRemembered =
        report.measure("activity entry", [&] { return store.add(activityEntry(job, result)); });
    const auto undone = report.measure("undo", [&] { return store.undo(job.id); });

    std::vector<InputFile> files;
    for (ItemResult& item : result.items) files.push_back(std::move(item.file));
    const JobConfiguration flat{.location = location::Folder{.value = output, .keepStructure = false}};
    const auto plan =
        report.measure("plan, one name for all", [&] { return engine.plan(files, OneNameForAll{}, flat); });
    report.print();
    const auto all = static_cast<int>(count);
    return isRemembered && undone && *undone == UndoReport{.removedOutputs = all} &&
                   plan.items.size() == count
               ? 0
               : 1;
}
