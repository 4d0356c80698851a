#pragma once

#include <TambleCore/Jobs/JobPlan.h>

namespace tamble {

/// One output about to be saved.
struct PlannedSave {
    /// Of the input; for a tool with one output of all, 0.
    std::size_t index = 0;
    /// Where the output waits.
    std::filesystem::path staged;
    Placement placement;
};

/// Is told what the saving phase is about to do and has done, so that a job that was killed can be taken back
/// later. The functions are called by one thread. What they throw before a step prevents the step.
class JobJournal {
  public:
    virtual ~JobJournal() = default;

    /// Called for every output before anything outside the staging folders changes, which is the whole plan;
    /// and again for an output that has to go elsewhere, because the disk is not as it was.
    virtual void willSave(const PlannedSave& save) = 0;
    /// The plan is complete, and the next call tells of a change.
    virtual void willBeginSaving() = 0;
    virtual void didCreateFolder(const std::filesystem::path& folder) = 0;
    virtual void didTrash(const TrashedItem& item) = 0;
    /// A file came back from the Bin, because its item could not be saved.
    virtual void didPutBack(const TrashedItem& item) = 0;
    virtual void didCreate(const std::filesystem::path& output, const FileFingerprint& fingerprint) = 0;

    /// Called for every file of a job that renames in place, before willBeginSaving().
    virtual void willRename(const PlannedRename& rename) = 0;
    virtual void didRenameAll() = 0;
    /// A file could not be renamed, and all have their old names again.
    virtual void didKeepAllNames() = 0;
};

}  // namespace tamble
