#pragma once

#include <TambleCore/Jobs/Renaming/PlannedRename.h>
#include <TambleCore/Platform/FileOperations.h>
#include <TambleCore/Support/Json/JsonCoding.h>

namespace tamble {

/// A file that a job moved to the Bin.
struct TrashedItem {
    FilePath original;
    FilePath inTrash;
    friend bool operator==(const TrashedItem&, const TrashedItem&) = default;
};
BOOST_DESCRIBE_STRUCT(TrashedItem, (), (original, inTrash))

/// Enough of a file to see whether it was changed since. For a folder: the sum of the sizes and the newest
/// time over all it holds.
struct FileFingerprint {
    std::int64_t size = 0;
    /// Seconds since 1970.
    double modified = 0;

    /// Empty when there is nothing at the path.
    static std::optional<FileFingerprint> of(const std::filesystem::path& path);
    /// Equal sizes, and times that differ by less than 0.001 seconds.
    friend bool operator==(const FileFingerprint& a, const FileFingerprint& b);
};
BOOST_DESCRIBE_STRUCT(FileFingerprint, (), (size, modified))

/// What a job changed on disk, and so what undo needs.
struct UndoRecord {
    std::vector<FilePath> createdFiles;
    std::vector<TrashedItem> trashedItems;
    /// By fingerprintKey() of a created file.
    std::map<FilePath, FileFingerprint> createdFingerprints;
    std::vector<RenamedItem> renamedItems;
    /// Folders the job made for its outputs, in the order they were made; absent when it made none.
    std::optional<std::vector<FilePath>> createdFolders = {};

    bool isEmpty() const { return createdFiles.empty() && trashedItems.empty() && renamedItems.empty(); }
};
BOOST_DESCRIBE_STRUCT(UndoRecord, (),
                      (createdFiles, trashedItems, createdFingerprints, renamedItems, createdFolders))

/// What an undo did.
struct UndoReport {
    int removedOutputs = 0;
    /// Files that are back from the Bin or under their old names.
    int restoredItems = 0;
    int problems = 0;
    int keptBecauseChanged = 0;

    friend bool operator==(const UndoReport&, const UndoReport&) = default;
};
BOOST_DESCRIBE_STRUCT(UndoReport, (), (removedOutputs, restoredItems, problems, keptBecauseChanged))

/// Takes back what a job changed, as far as the files are still as the job left them: removes its outputs,
/// puts back what went to the Bin and what was renamed, and removes folders it made that are empty now. An
/// output that is gone already counts as nothing. Never throws, never overwrites, never stops at a problem.
UndoReport apply(const UndoRecord& record, FileOperations& fileOps);

/// How apply() gives the files of the record their old names; to be written down before, so that resume()
/// finds them again.
std::vector<PlannedRename> plannedWayBack(const UndoRecord& record);
UndoReport apply(const UndoRecord& record, std::vector<PlannedRename> wayBack, FileOperations& fileOps);

/// Goes on with an apply() during which the program died: what is back already is left alone, also where it
/// now stands under the name of an output.
UndoReport resume(UndoRecord record, std::vector<PlannedRename> wayBack, FileOperations& fileOps);

/// The path itself, or its file URL when its bytes are not UTF-8 and so cannot be a JSON key.
FilePath fingerprintKey(const FilePath& path);

}  // namespace tamble
