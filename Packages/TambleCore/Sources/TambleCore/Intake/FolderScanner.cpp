#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Intake/FolderScanner.h>
#include <TambleCore/Intake/ScanBuilder.h>
#include <TambleCore/Support/Log.h>

namespace tamble {

ScanOptions::ScanOptions(bool entersSubfolders)
    : includeSubfolders(entersSubfolders), accepts(FileTypes::isReadableImage) {}

ScanResult FolderScanner::scan(std::span<const std::filesystem::path> urls) const {
    Builder builder(options, urls.size());
    for (const auto& url : urls) builder.visit(url);
    ScanResult result = std::move(builder).result();
    Log("intake").notice("Scanned {} files, {} others, {} unreadable", result.files.size(),
                         result.otherFileCount, result.unreadableCount);
    return result;
}

}  // namespace tamble
