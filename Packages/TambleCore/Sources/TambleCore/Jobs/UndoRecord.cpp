#include <TambleCore/Jobs/Renaming/RenameMoves.h>
#include <TambleCore/Jobs/UndoRecord.h>
#include <TambleCore/Platform/CheckedFileOperations.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Support/Log.h>
#include <TambleCore/Support/PathKey.h>

#include <ranges>
#include <unordered_map>
#include <unordered_set>

namespace tamble {
namespace {

constexpr Log engineLog("engine");

/// Takes one record back; each step counts itself.
class Undo {
  public:
    Undo(const UndoRecord& record, RenameMoves wayBack, FileOperations& fileOps)
        : record_(record), wayBack_(std::move(wayBack)), fileOps_(fileOps) {}

    UndoReport run() {
        removeOutputs();
        restoreFromBin();
        renameBack();
        removeFolders();
        engineLog.notice("Undo: {} outputs removed, {} restored, {} kept (changed), {} problems",
                         report_.removedOutputs, report_.restoredItems, report_.keptBecauseChanged,
                         report_.problems);
        return report_;
    }

  private:
    /// What these steps throw counts as a problem.
    template <typename Step>
    bool succeeds(const Step& step) {
        try {
            step();
            return true;
        } catch (const std::exception&) {
            ++report_.problems;
            return false;
        }
    }

    void removeOutputs() {
        std::unordered_map<std::string, FileFingerprint> expected;
        for (const auto& [key, fingerprint] : record_.createdFingerprints) {
            expected.emplace(pathKey(pathFromFileURL(key.native()).value_or(key)), fingerprint);
        }
        for (const auto& output : record_.createdFiles) {
            const auto current = FileFingerprint::of(output);
            if (!current) continue;
            const auto recorded = expected.find(pathKey(output));
            if (recorded == expected.end() || !(recorded->second == *current)) {
                ++report_.keptBecauseChanged;
                engineLog.notice("Undo kept a file that changed after the job");
                continue;
            }
            if (succeeds([&] { fileOps_.remove(standardized(output)); })) ++report_.removedOutputs;
        }
    }

    /// The last first: what went to the Bin after a folder's own files may be the folder.
    void restoreFromBin() {
        for (const auto& item : record_.trashedItems | std::views::reverse) {
            const bool isBack = succeeds([&] {
                makeFolderOf(item.original);
                fileOps_.move(item.inTrash, item.original);
            });
            if (isBack) ++report_.restoredItems;
        }
    }

    void makeFolderOf(const std::filesystem::path& item) {
        const std::filesystem::path folder = standardized(item).parent_path();
        if (!std::filesystem::exists(folder)) fileOps_.createDirectory(folder);
    }

    void renameBack() {
        wayBack_.run(RenameMoves::AfterProblem::goOn);
        const std::size_t back = wayBack_.count(RenamePlace::to);
        report_.restoredItems += static_cast<int>(back);
        report_.problems += static_cast<int>(wayBack_.renames().size() - back);
        for (std::size_t i = wayBack_.count(RenamePlace::parked); i > 0; --i) {
            engineLog.error("Undo couldn't put a renamed file back; it is at a temporary name in its folder");
        }
    }

    /// A folder that holds something by now stays, and so do those above it.
    void removeFolders() {
        if (!record_.createdFolders) return;
        for (const auto& folder : *record_.createdFolders | std::views::reverse) {
            std::error_code error;
            if (!std::filesystem::is_empty(folder, error) || error) continue;
            succeeds([&] { fileOps_.removeEmptyDirectory(folder); });
        }
    }

    const UndoRecord& record_;
    RenameMoves wayBack_;
    CheckedFileOperations fileOps_;
    UndoReport report_;
};

}  // namespace

std::vector<PlannedRename> plannedWayBack(const UndoRecord& record) {
    std::vector<RenamedItem> items;
    items.reserve(record.renamedItems.size());
    for (const RenamedItem& item : record.renamedItems) items.push_back({.from = item.to, .to = item.from});
    return plannedRenames(items, ".tamble-undo-");
}

UndoReport apply(const UndoRecord& record, FileOperations& fileOps) {
    return apply(record, plannedWayBack(record), fileOps);
}

UndoReport apply(const UndoRecord& record, std::vector<PlannedRename> wayBack, FileOperations& fileOps) {
    return Undo(record, RenameMoves(std::move(wayBack), fileOps), fileOps).run();
}

UndoReport resume(UndoRecord record, std::vector<PlannedRename> wayBack, FileOperations& fileOps) {
    std::unordered_set<std::string> back;
    std::erase_if(record.trashedItems, [&](const TrashedItem& item) {
        if (isThere(item.inTrash) || !isThere(item.original)) return false;
        back.insert(pathKey(item.original));
        return true;
    });
    std::erase_if(record.createdFiles,
                  [&](const std::filesystem::path& output) { return back.contains(pathKey(output)); });
    UndoReport report = Undo(record, RenameMoves::resumed(std::move(wayBack), fileOps), fileOps).run();
    report.restoredItems += static_cast<int>(back.size());
    return report;
}

}  // namespace tamble
