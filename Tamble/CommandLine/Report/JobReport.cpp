#include <Tamble/CommandLine/Report/JobReport.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/CommandLine/Text/SafeText.h>

#include <TambleCore/Support/Wording.h>

#include <algorithm>

#include <fmt/format.h>

namespace tamble {
namespace {

/// Sentences with how often each was met, in the order of the first.
class Tally {
  public:
    void add(const std::string& sentence) {
        const auto found = std::ranges::find(counts_, sentence, &Entry::first);
        if (found != counts_.end()) {
            ++found->second;
        } else {
            counts_.emplace_back(sentence, 1);
        }
    }

    /// "Too big. (2) Animated. (1)"; the count is left out where there is only one sentence.
    std::string text() const {
        std::string text;
        for (const auto& [sentence, count] : counts_) {
            if (!text.empty()) text += ' ';
            text += sentence;
            if (counts_.size() > 1) text += fmt::format(" ({})", count);
        }
        return text;
    }

  private:
    using Entry = std::pair<std::string, int>;
    std::vector<Entry> counts_;
};

std::string failureSentence(const ItemFailure& failure) {
    const std::string sentence = safeText(localized(failure.detail));
    return sentence.empty() ? safeText(failure.code) : sentence;
}

std::string skipSentence(const SkipReason& reason) {
    return safeText(localized(sentence(reason)));
}

std::string withStop(std::string text) {
    if (!text.empty() && text.back() != '.' && text.back() != ')') text += '.';
    return text;
}

std::string_view noteSentence(ItemNote note) {
    switch (note) {
        case ItemNote::originalKeptNoBin:
            return "There is no Bin for this disk, so the original was kept and the new file saved beside "
                   "it.";
        case ItemNote::existingKeptNoBin:
            return "There is no Bin for this disk, so the existing file was kept and the new file saved with "
                   "a number.";
        case ItemNote::sealBroken:
            break;
    }
    return "This PDF is digitally signed. The new file is a changed one, so the seal no longer holds for it.";
}

/// The one failure of all of several items.
std::optional<ItemFailure> commonFailure(const JobResult& result) {
    if (result.items.size() < 2) return std::nullopt;
    const auto* first = std::get_if<outcome::Failed>(&result.items.front().outcome);
    const bool isCommon = first != nullptr && std::ranges::all_of(result.items, [&](const ItemResult& item) {
                              return item.outcome == result.items.front().outcome;
                          });
    return isCommon ? std::optional(first->value) : std::nullopt;
}

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const auto& part : parts) text += (text.empty() ? "" : " ") + part;
    return text;
}

struct PlanTotals {
    int planned = 0;
    int skipped = 0;
    int failed = 0;
};

std::string planLine(const InputFile& file, const Placement& placement, PlanTotals& totals) {
    ++totals.planned;
    std::string line = fmt::format("{} → {}", shownPath(file.url), shownPath(placement.target));
    if (placement.original) line += " (the original goes to the Bin)";
    if (placement.clashing) line += " (the existing file goes to the Bin)";
    return line;
}

std::string planLine(const InputFile& file, const outcome::Skipped& skipped, PlanTotals& totals) {
    ++totals.skipped;
    return fmt::format("{}: skipped: {}", shownPath(file.url), skipSentence(skipped.value));
}

std::string planLine(const InputFile& file, const outcome::Failed& failed, PlanTotals& totals) {
    ++totals.failed;
    return fmt::format("{}: would fail: {}", shownPath(file.url), failureSentence(failed.value));
}

std::string savedText(const JobTotals& totals) {
    const std::string files = countText(totals.saved, "new file", "new files");
    if (totals.savedFolders == 0) return files;
    return fmt::format("{} in {}", files, countText(totals.savedFolders, "new folder", "new folders"));
}

}  // namespace

std::string closingLine(const JobResult& result, const std::string& undoCommand) {
    if (result.wasCancelled) return "Stopped before saving; nothing was saved.";
    const JobTotals totals = JobTotals::of(result);
    Tally reasons;
    Tally sentences;
    for (const auto& item : result.items) {
        if (const auto* skipped = std::get_if<outcome::Skipped>(&item.outcome))
            reasons.add(skipSentence(skipped->value));
        if (const auto* failed = std::get_if<outcome::Failed>(&item.outcome)) {
            sentences.add(failureSentence(failed->value));
        }
    }
    std::vector<std::string> parts;
    if (totals.saved > 0) {
        parts.push_back(fmt::format("Saved {}, {} → {} ({}).", savedText(totals),
                                    sizeText(totals.bytesBefore), sizeText(totals.bytesAfter),
                                    changeText(totals.bytesBefore, totals.bytesAfter)));
    } else {
        parts.emplace_back("Nothing was saved.");
    }
    if (totals.skipped > 0)
        parts.push_back(withStop(fmt::format("{} skipped: {}", totals.skipped, reasons.text())));
    if (totals.failed > 0)
        parts.push_back(withStop(fmt::format("{} failed: {}", totals.failed, sentences.text())));
    if (!undoCommand.empty()) parts.push_back(fmt::format("To undo: {}", undoCommand));
    return joined(parts);
}

std::vector<std::string> problemLines(const JobResult& result) {
    // What several files were to become together failed once.
    if (const auto common = commonFailure(result)) return {failureSentence(*common)};
    std::vector<std::string> lines;
    for (const auto& item : result.items) {
        if (const auto* failed = std::get_if<outcome::Failed>(&item.outcome)) {
            lines.push_back(fmt::format("{}: {}", shownPath(item.file.url), failureSentence(failed->value)));
        }
        const auto* done = std::get_if<outcome::Done>(&item.outcome);
        if (done != nullptr && done->note) {
            lines.push_back(fmt::format("{}: {}", shownPath(item.file.url), noteSentence(*done->note)));
        }
    }
    return lines;
}

std::vector<std::string> planLines(std::span<const InputFile> files, const JobPlan& plan) {
    std::vector<std::string> lines;
    PlanTotals totals;
    for (std::size_t i = 0; i < std::min(files.size(), plan.items.size()); ++i) {
        lines.push_back(std::visit([&](const auto& planned) { return planLine(files[i], planned, totals); },
                                   plan.items[i]));
    }
    // A tool with one output of all has one entry in its plan.
    const auto others =
        static_cast<std::int64_t>(files.size()) - static_cast<std::int64_t>(plan.items.size());
    if (others > 0 && !lines.empty())
        lines.back() += fmt::format(" (with {})", countText(others, "more", "more"));
    lines.push_back(fmt::format("{} would be saved, {} skipped, {} would fail. Nothing was touched.",
                                countText(totals.planned, "new file", "new files"), totals.skipped,
                                totals.failed));
    return lines;
}

std::string shownPath(const std::filesystem::path& path) {
    std::error_code error;
    const auto current = std::filesystem::current_path(error);
    const auto relative = path.lexically_relative(current);
    const bool isBelow = !error && !relative.empty() && *relative.begin() != "..";
    return safeText((isBelow ? relative : path).native());
}

}  // namespace tamble
