#pragma once

#include <TambleCore/Jobs/ItemProcessing.h>
#include <TambleCore/Jobs/JobSaver.h>
#include <TambleCore/Jobs/StagingArea.h>

namespace tamble {

/// Saves the outputs of one job: all are planned, the journal is told, then each is put into its place.
class SavingPhase {
  public:
    /// Takes the outcome of the item with that index.
    using HandOver = std::function<void(std::size_t index, ItemOutcome outcome)>;

    /// `journal` may be null.
    SavingPhase(FileOperations& fileOps, JobJournal* journal, SavePlanner& planner, ClashPolicy policy,
                StagingArea& staging);

    void plan(std::size_t index, const InputFile& file, const std::string& outputName, const Staged& staged);
    /// In the order of planning; never throws what is not thrown by `handOver`.
    void saveAll(const HandOver& handOver);
    /// What was changed by all of it.
    UndoRecord finish();

  private:
    struct Waiting {
        std::size_t index = 0;
        SavePlanner::Decision decision;
        Staged staged;
    };
    PlannedSave plannedSave(std::size_t index, Placement placement) const;
    std::optional<std::string> announce() const;
    ItemOutcome save(Waiting& waiting);

    JobJournal* journal_;
    SavePlanner& planner_;
    StagingArea& staging_;
    JobSaver saver_;
    std::vector<Waiting> waiting_;
};

}  // namespace tamble
