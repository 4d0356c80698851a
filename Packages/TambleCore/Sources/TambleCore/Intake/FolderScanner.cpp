#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Intake/FolderScanner.h>
#include <TambleCore/Intake/ScanBuilder.h>
#include <TambleCore/Support/Log.h>

#include <future>

namespace tamble {
namespace {

/// Lets the other side end, even when reading fails.
struct CloseAtEnd {
    InputFileMaker& maker;
    ~CloseAtEnd() { maker.close(); }
};

}  // namespace

ScanOptions::ScanOptions(bool entersSubfolders)
    : includeSubfolders(entersSubfolders), accepts(FileTypes::isReadableImage) {}

ScanResult FolderScanner::scan(std::span<const std::filesystem::path> urls, std::stop_token stop) const {
    InputFileMaker maker;
    // The reading is the part to move: memory in large amounts is cheaper to get on the calling thread.
    auto reading = std::async(std::launch::async, [this, urls, &maker, stop] {
        const CloseAtEnd closing{maker};
        Builder builder(options, urls.size(), maker, stop);
        for (const auto& url : urls) builder.visit(url);
        return std::move(builder).result();
    });
    auto files = maker.makeAll();
    ScanResult result = reading.get();
    result.files = std::move(files);
    result.wasCancelled = stop.stop_requested();
    Log("intake").notice("Scanned {} files, {} others, {} unreadable", result.files.size(),
                         result.otherFileCount, result.unreadableCount);
    return result;
}

}  // namespace tamble
