#include <TambleCore/Jobs/SavingPhase.h>
#include <TambleCore/Platform/SystemError.h>

#include <utility>

namespace tamble {

SavingPhase::SavingPhase(FileOperations& fileOps, JobJournal* journal, SavePlanner& planner,
                         ClashPolicy policy, StagingArea& staging)
    : journal_(journal), planner_(planner), staging_(staging), saver_(fileOps, journal, planner, policy) {}

void SavingPhase::plan(std::size_t index, const InputFile& file, const std::string& outputName,
                       const Staged& staged) {
    waiting_.push_back({index, planner_.next(file, outputName), staged});
}

void SavingPhase::saveAll(const HandOver& handOver) {
    const std::optional<std::string> problem = announce();
    for (Waiting& waiting : waiting_) {
        ItemOutcome result = problem ? outcome::Failed{{.stage = ItemFailure::Stage::saving,
                                                        .code = "cannotSave",
                                                        .detail = *problem}}
                                     : save(waiting);
        staging_.discard(waiting.index);
        handOver(waiting.index, std::move(result));
    }
}

UndoRecord SavingPhase::finish() {
    return saver_.finish();
}

PlannedSave SavingPhase::plannedSave(std::size_t index, Placement placement) const {
    return {.index = index, .staged = staging_.placeOf(index), .placement = std::move(placement)};
}

/// Nothing is changed unless the whole plan is written down; answers why it is not.
std::optional<std::string> SavingPhase::announce() const {
    if (journal_ == nullptr) return std::nullopt;
    try {
        for (const Waiting& waiting : waiting_) {
            const auto* placement = std::get_if<Placement>(&waiting.decision);
            if (placement != nullptr) journal_->willSave(plannedSave(waiting.index, *placement));
        }
        journal_->willBeginSaving();
        return std::nullopt;
    } catch (const std::exception& error) {
        return "Couldn't write down what would be changed: " + causeOf(error);
    }
}

ItemOutcome SavingPhase::save(Waiting& waiting) {
    if (auto* skipped = std::get_if<outcome::Skipped>(&waiting.decision)) return std::move(*skipped);
    ItemOutcome saved =
        saver_.save(plannedSave(waiting.index, std::get<Placement>(std::move(waiting.decision))),
                    waiting.staged.original);
    // What the saver has to say is about where the files are, and goes first.
    auto* done = std::get_if<outcome::Done>(&saved);
    if (done != nullptr && !done->note) done->note = waiting.staged.note;
    return saved;
}

}  // namespace tamble
