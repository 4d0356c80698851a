#include <TambleCore/Jobs/JobSaver.h>
#include <TambleCore/Jobs/WatchedInput.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>
#include <TambleCore/Support/PathKey.h>

#include <ranges>
#include <utility>

namespace tamble {
namespace {

constexpr Log engineLog("engine");

/// A name that was free when the job was planned is taken now, and the existing file is to stay.
class NameTakenMeanwhile : public std::exception {};

outcome::Failed failed(const char* code, std::string detail) {
    return {{.stage = ItemFailure::Stage::saving, .code = code, .detail = std::move(detail)}};
}

bool isFolder(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

}  // namespace

JobSaver::JobSaver(FileOperations& fileOps, JobJournal* journal, SavePlanner& planner, ClashPolicy policy)
    : fileOps_(fileOps), journal_(journal), planner_(planner), policy_(policy) {}

ItemOutcome JobSaver::save(PlannedSave save, const std::optional<FileState>& original) {
    const std::size_t firstTrashed = record_.trashedItems.size();
    try {
        makeFolderFor(save.placement.target);
    } catch (const std::exception& error) {
        return failed("cannotCreateFolder", causeOf(error));
    }
    try {
        std::optional<ItemNote> note;
        clearTheWay(save, original, note);
        moveIntoPlace(save);
        return placed(std::move(save.placement.target), note);
    } catch (const NameTakenMeanwhile&) {
        if (putBack(firstTrashed)) return outcome::Skipped{skip::NameTaken{}};
        return failed("cannotSaveOriginalInBin", std::make_error_code(std::errc::file_exists).message());
    } catch (const InputFailure& failure) {
        return failed(putBack(firstTrashed) ? failure.code().c_str() : "cannotSaveOriginalInBin",
                      failure.sentence());
    } catch (const std::exception& error) {
        std::string cause = causeOf(error);
        return failed(putBack(firstTrashed) ? "cannotSave" : "cannotSaveOriginalInBin", std::move(cause));
    }
}

UndoRecord JobSaver::finish() {
    if (record_.createdFiles.empty() && record_.createdFolders) {
        for (const auto& folder : *record_.createdFolders | std::views::reverse) {
            try {
                fileOps_.removeEmptyDirectory(folder);
            } catch (const std::exception&) {
                // Somebody else uses it by now.
            }
        }
        // What is still there is for undo to try again.
        std::erase_if(*record_.createdFolders, [](const auto& folder) { return !isThere(folder); });
        if (record_.createdFolders->empty()) record_.createdFolders.reset();
    }
    return std::move(record_);
}

void JobSaver::makeFolderFor(const std::filesystem::path& target) {
    const std::filesystem::path folder = standardized(target).parent_path();
    if (isFolder(folder)) return;
    std::vector<std::filesystem::path> missing;
    for (std::filesystem::path above = folder; above.has_relative_path() && !isFolder(above);
         above = above.parent_path()) {
        missing.push_back(above);
    }
    const auto recordMade = [&] {
        for (const auto& made : missing | std::views::reverse) {
            if (!isFolder(made)) continue;
            if (!record_.createdFolders) record_.createdFolders.emplace();
            record_.createdFolders->push_back(made);
            tell([&](JobJournal& journal) { journal.didCreateFolder(made); });
        }
    };
    try {
        fileOps_.createDirectory(folder);
    } catch (...) {
        recordMade();
        throw;
    }
    recordMade();
}

/// Sends to the Bin what the plan says; where there is no Bin, it stays and the output takes another name.
void JobSaver::clearTheWay(PlannedSave& save, const std::optional<FileState>& asRead,
                           std::optional<ItemNote>& note) {
    const auto [target, original, clashing] = save.placement;
    if (clashing && keepsForWantOfBin(*clashing)) {
        engineLog.notice("Existing file couldn't go to the Bin; saving with a number instead");
        note = ItemNote::existingKeptNoBin;
        useNumberInstead(save);
    }
    if (!original) return;
    throwIfChanged(*original, asRead);
    if (!keepsForWantOfBin(*original)) return;
    note = ItemNote::originalKeptNoBin;
    if (pathKey(save.placement.target) != pathKey(*original)) {
        engineLog.notice("Original couldn't go to the Bin; keeping it");
        return;
    }
    engineLog.notice("Original couldn't go to the Bin; keeping it and saving beside it");
    useNumberInstead(save);
}

bool JobSaver::keepsForWantOfBin(const std::filesystem::path& item) {
    try {
        trash(item);
        return false;
    } catch (const std::filesystem::filesystem_error& error) {
        if (!fileOps_.isNoBinError(error.code())) throw;
        planner_.noteExisting(item);
        return true;
    }
}

void JobSaver::trash(const std::filesystem::path& item) {
    record_.trashedItems.push_back({.original = item, .inTrash = fileOps_.trash(item)});
    tell([&](JobJournal& journal) { journal.didTrash(record_.trashedItems.back()); });
}

void JobSaver::moveIntoPlace(PlannedSave& save) {
    // Somebody may keep on taking names while the job saves, but not for ever.
    constexpr int attempts = 100;
    for (int attempt = 1;; ++attempt) {
        try {
            fileOps_.move(save.staged, standardized(save.placement.target));
            return;
        } catch (const std::filesystem::filesystem_error& error) {
            if (error.code() != std::errc::file_exists || attempt == attempts) throw;
        }
        if (policy_ == ClashPolicy::skip) throw NameTakenMeanwhile();
        planner_.noteExisting(save.placement.target);
        useNumberInstead(save);
    }
}

void JobSaver::useNumberInstead(PlannedSave& save) {
    save.placement.target = planner_.numberedInstead(save.placement.target);
    if (journal_ != nullptr) journal_->willSave(save);
}

outcome::Done JobSaver::placed(FilePath target, std::optional<ItemNote> note) {
    const auto fingerprint = FileFingerprint::of(target);
    record_.createdFiles.push_back(target);
    if (fingerprint) record_.createdFingerprints.emplace(fingerprintKey(target), *fingerprint);
    tell([&](JobJournal& journal) { journal.didCreate(target, fingerprint.value_or(FileFingerprint{})); });
    return {.value = std::move(target), .note = note};
}

/// Brings everything back from the Bin that went there for the item that failed; the last first.
bool JobSaver::putBack(std::size_t firstTrashed) {
    bool isAllBack = true;
    for (std::size_t i = record_.trashedItems.size(); i-- > firstTrashed;) {
        const TrashedItem item = record_.trashedItems[i];
        try {
            fileOps_.move(item.inTrash, item.original);
            record_.trashedItems.erase(record_.trashedItems.begin() + static_cast<std::ptrdiff_t>(i));
            planner_.noteExisting(item.original);
            tell([&](JobJournal& journal) { journal.didPutBack(item); });
        } catch (const std::exception& error) {
            engineLog.error("Couldn't restore original from the Bin after a failed save: {}", causeOf(error));
            isAllBack = false;
        }
    }
    return isAllBack;
}

/// What has happened has happened, whether or not it could be written down.
void JobSaver::tell(const std::function<void(JobJournal&)>& message) {
    if (journal_ == nullptr) return;
    try {
        message(*journal_);
    } catch (const std::exception& error) {
        engineLog.error("Couldn't write the journal: {}", causeOf(error));
    }
}

}  // namespace tamble
