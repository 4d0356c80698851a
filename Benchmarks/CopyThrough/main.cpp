// A job that only copies: what the engine itself costs. Usage: tamble-bench INPUT OUTPUT ITEMS-AT-ONCE
#include <TambleCore/Intake/FolderScanner.h>
#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Jobs/JobEngine.h>
#include <TambleCore/Platform/SystemFileOperations.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

int main(int argc, char* argv[]) {
    using namespace tamble;
    if (argc != 4) {
        std::fputs("Usage: tamble-bench INPUT OUTPUT ITEMS-AT-ONCE\n", stderr);
        return 2;
    }
    const std::array input{std::filesystem::absolute(argv[1])};
    ScanOptions options(true);
    options.accepts = [](const std::optional<ContentType>&) { return true; };
    const ScanResult scanned = FolderScanner{options}.scan(input);

    const JobEngine engine{std::make_shared<SystemFileOperations>()};
    const JobConfiguration configuration{
        .location = location::Folder{.value = std::filesystem::absolute(argv[2]), .keepStructure = true},
        .maxConcurrent = std::atoi(argv[3])};
    const JobResult result = engine.run(scanned.files, CopyThroughProcessor{}, configuration);

    const auto saved = std::ranges::count_if(result.items, [](const ItemResult& item) {
        return std::holds_alternative<outcome::Done>(item.outcome);
    });
    std::printf("%td of %zu saved in %.3f s\n", saved, result.items.size(), result.duration);
    return saved == std::ssize(scanned.files) ? 0 : 1;
}
