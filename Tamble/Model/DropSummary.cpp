#include <Tamble/Model/DropSummary.h>

#include <TambleCore/Support/Text.h>

namespace tamble {
namespace {

int foldersBelow(const FolderNode& folder) {
    int count = 0;
    for (const FolderNode& child : folder.children) count += 1 + foldersBelow(child);
    return count;
}

}  // namespace

DropSummary DropSummary::of(const ScanResult& scan) {
    DropSummary summary{.counts = KindCounts::of(scan.files),
                        .folders = static_cast<int>(scan.roots.size()),
                        .looseFiles = scan.looseFileCount,
                        .bytes = scan.totalBytes,
                        .wasCancelled = scan.wasCancelled};
    summary.others = scan.otherFileCount + static_cast<int>(scan.files.size()) - summary.counts.total();
    for (const FolderNode& root : scan.roots) summary.subfolders += foldersBelow(root);
    if (!scan.roots.empty()) summary.firstFolderName = printable(scan.roots.front().name);
    if (!scan.files.empty()) summary.firstFileName = printable(scan.files.front().url.filename().native());
    return summary;
}

}  // namespace tamble
