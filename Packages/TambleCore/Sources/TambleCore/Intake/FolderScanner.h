#pragma once

#include <TambleCore/Intake/ScanResult.h>

#include <functional>
#include <span>
#include <stop_token>

namespace tamble {

/// Which files a scan takes: an answer to the type alone, kept for the next file of the type. Called from one
/// thread at a time, which is not the caller's.
using ContentPredicate = std::function<bool(const std::optional<ContentType>&)>;

struct ScanOptions {
    bool includeSubfolders = true;
    /// The default takes pictures that can be read.
    ContentPredicate accepts;
    int maxDepth = 64;

    explicit ScanOptions(bool includeSubfolders);
};

/// Turns dropped files and folders into a flat, ordered list of input files and the tree of their folders.
struct FolderScanner {
    ScanOptions options;

    /// Never fails as a whole: what cannot be read is counted. Blocks; call it off the main thread. A stop
    /// request ends it soon, with what was found by then.
    ScanResult scan(std::span<const std::filesystem::path> urls, std::stop_token stop = {}) const;

  private:
    class Builder;
};

}  // namespace tamble
