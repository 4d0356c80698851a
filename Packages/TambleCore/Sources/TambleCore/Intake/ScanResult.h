#pragma once

#include <TambleCore/Intake/InputFile.h>

#include <vector>

#include <boost/describe.hpp>

namespace tamble {

/// One scanned folder.
struct FolderNode {
    std::filesystem::path url;
    std::string name;
    /// Relative to the dropped root, "" for the root.
    std::string relativePath;
    /// 0 for the dropped folder.
    int depth = 0;
    /// Accepted files directly in this folder; files of subfolders count there.
    int fileCount = 0;
    /// Subfolders that hold an accepted file at any depth, in Finder order.
    std::vector<FolderNode> children;

    /// Accepted files in this folder and below.
    int totalFileCount() const;
};
BOOST_DESCRIBE_STRUCT(FolderNode, (), (url, name, relativePath, depth, fileCount, children))

/// What a drop was found to hold.
struct ScanResult {
    std::vector<InputFile> files;
    /// One per dropped folder that yielded at least one file.
    std::vector<FolderNode> roots;
    int looseFileCount = 0;
    int otherFileCount = 0;
    int skippedPackageCount = 0;
    int skippedLinkCount = 0;
    int unreadableCount = 0;
    /// Dropped folders that could not be listed or in which nothing was found, neither taken nor skipped.
    int emptyFolderCount = 0;
    std::int64_t totalBytes = 0;
    /// Whether it was asked to stop, and so may be a part only.
    bool wasCancelled = false;
};

/// What people are told after a drop about items that were left out; empty when nothing was.
std::vector<std::string> scanNotes(const ScanResult& result);

}  // namespace tamble
