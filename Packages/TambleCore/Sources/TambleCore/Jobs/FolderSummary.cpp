#include <TambleCore/Jobs/FolderSummary.h>
#include <TambleCore/Support/FileURL.h>

#include <algorithm>
#include <unordered_map>

namespace tamble {
namespace {

FolderSummary emptySummary(const InputFile& file) {
    FolderSummary summary;
    summary.folderURL = file.url.parent_path();
    summary.id = fileURL(summary.folderURL) + (file.isLoose ? "#loose" : "");
    if (file.isLoose) return summary;
    summary.name = summary.folderURL.filename().native();
    if (!file.relativeFolder.empty()) {
        summary.depth = 1 + static_cast<int>(std::ranges::count(file.relativeFolder, '/'));
    }
    return summary;
}

void count(FolderSummary& summary, const ItemOutcome& itemOutcome) {
    ++summary.total;
    if (std::holds_alternative<outcome::Done>(itemOutcome)) ++summary.done;
    if (std::holds_alternative<outcome::Failed>(itemOutcome)) ++summary.failed;
    if (const auto* skipped = std::get_if<outcome::Skipped>(&itemOutcome)) {
        ++summary.skipped;
        if (std::holds_alternative<skip::AlreadyInFormat>(skipped->value)) ++summary.alreadyInFormat;
    }
}

}  // namespace

std::vector<FolderSummary> folderSummaries(std::span<const ItemResult> items) {
    std::vector<FolderSummary> summaries;
    std::unordered_map<std::string, std::size_t> rows;
    for (const ItemResult& item : items) {
        FolderSummary fresh = emptySummary(item.file);
        const auto [row, isNew] = rows.try_emplace(fresh.id, summaries.size());
        if (isNew) summaries.push_back(std::move(fresh));
        count(summaries[row->second], item.outcome);
    }
    return summaries;
}

}  // namespace tamble
