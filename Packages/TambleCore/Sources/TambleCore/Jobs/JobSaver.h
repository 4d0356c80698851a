#pragma once

#include <TambleCore/Jobs/Journal/JobJournal.h>
#include <TambleCore/Jobs/SavePlanner.h>
#include <TambleCore/Platform/CheckedFileOperations.h>
#include <TambleCore/Platform/FileState.h>

#include <functional>

namespace tamble {

/// The second phase of a job: puts outputs into their places, one by one, and records every change. An
/// original that went to the Bin for an output that then cannot be saved is put back.
class JobSaver {
  public:
    /// `journal` may be null.
    JobSaver(FileOperations& fileOps, JobJournal* journal, SavePlanner& planner, ClashPolicy policy);

    /// `original`: what it was like when it was read; it goes to the Bin only as long as it is still so.
    /// Never throws.
    ItemOutcome save(PlannedSave save, const std::optional<FileState>& original);

    /// What was changed by all of it. Folders made for nothing are removed first.
    UndoRecord finish();

  private:
    void makeFolderFor(const std::filesystem::path& target);
    void clearTheWay(PlannedSave& save, const std::optional<FileState>& asRead,
                     std::optional<ItemNote>& note);
    void trash(const std::filesystem::path& item);
    bool keepsForWantOfBin(const std::filesystem::path& item);
    void moveIntoPlace(PlannedSave& save);
    void useNumberInstead(PlannedSave& save);
    outcome::Done placed(FilePath target, std::optional<ItemNote> note);
    bool putBack(std::size_t firstTrashed);
    void tell(const std::function<void(JobJournal&)>& message);

    CheckedFileOperations fileOps_;
    JobJournal* journal_;
    SavePlanner& planner_;
    ClashPolicy policy_;
    UndoRecord record_;
};

}  // namespace tamble
