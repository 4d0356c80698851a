#include <Tamble/Model/DropSummary.h>

#include <TambleCore/Support/Text.h>

namespace tamble {
DropSummary DropSummary::of(const ScanResult& scan) {
    DropSummary summary{.counts = KindCounts::of(scan.files),
                        .folders = static_cast<int>(scan.roots.size()),
                        .looseFiles = scan.looseFileCount,
                        .bytes = scan.totalBytes};
    summary.others = scan.otherFileCount + static_cast<int>(scan.files.size()) - summary.counts.total();
    if (!scan.roots.empty()) summary.firstFolderName = printable(scan.roots.front().name);
    return summary;
}

}  // namespace tamble
