#pragma once

#include <TambleCore/Intake/ScanResult.h>
#include <TambleCore/Jobs/FileRenamer.h>

namespace tamble {

/// What would become of files that get new names.
struct RenamePreview {
    RenameWay way = RenameWay::inPlace;
    std::span<const InputFile> files;
    /// One for each file.
    std::vector<PlannedName> names;
    /// Where each would be; in place, what has a problem would fail.
    JobPlan plan;

    /// In place, from the names alone.
    static RenamePreview inPlace(std::span<const InputFile> files, std::vector<PlannedName> names);
    std::int64_t problemCount() const;
};

/// Old and new names in columns with the problem beside each, then the line that closes them. Not wider than
/// `width`, where that is given.
std::vector<std::string> previewLines(const RenamePreview& preview, std::optional<std::size_t> width);

/// One line for each file that has a problem.
std::vector<std::string> previewProblems(const RenamePreview& preview);

Json previewJson(const RenamePreview& preview);

/// One line for the file that could not be renamed, and for each that could not get its old name back.
std::vector<std::string> renameProblems(const JobResult& result);

/// The one line that closes a job that renamed in place. `undoCommand` is empty for a job that left nothing
/// to undo.
std::string renameClosingLine(const JobResult& result, const std::string& undoCommand);

}  // namespace tamble
