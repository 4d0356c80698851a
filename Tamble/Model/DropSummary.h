#pragma once

#include <TambleCore/Intake/KindCounts.h>
#include <TambleCore/Intake/ScanResult.h>

#include <string>

namespace tamble {

/// A drop in numbers; scanNotes() tells what was left out.
struct DropSummary {
    KindCounts counts;
    /// Files of a kind that no family works on, whether they were taken or not.
    int others = 0;
    /// Dropped folders in which something was found.
    int folders = 0;
    /// Files that were dropped themselves.
    int looseFiles = 0;
    /// Of all files that were taken.
    std::int64_t bytes = 0;
    /// For people to read; empty when no folder was dropped.
    std::string firstFolderName;

    /// Files of any kind, and others.
    int files() const noexcept { return counts.total() + others; }
    static DropSummary of(const ScanResult& scan);
    friend bool operator==(const DropSummary&, const DropSummary&) = default;
};

}  // namespace tamble
