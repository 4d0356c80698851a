#include <Tamble/Model/ActivityEntry.h>

#include <TambleCore/Support/Text.h>
#include <TambleCore/Support/UUID.h>

#include <charconv>

#include <fmt/chrono.h>

namespace tamble {
namespace {

std::int64_t sizeOf(const std::filesystem::path& output) {
    const auto fingerprint = FileFingerprint::of(output);
    return fingerprint ? fingerprint->size : 0;
}

void addOutput(ActivityEntry& entry, const std::filesystem::path& output) {
    entry.outputFiles.push_back(output);
    const auto recorded = entry.undo.createdFingerprints.find(fingerprintKey(output));
    entry.outputBytes +=
        recorded == entry.undo.createdFingerprints.end() ? sizeOf(output) : recorded->second.size;
}

bool areOfOneFolder(std::span<const ItemResult> items) {
    const InputFile& first = items.front().file;
    for (const ItemResult& item : items) {
        if (item.file.isLoose || item.file.root != first.root) return false;
    }
    return !first.root.lexically_normal().filename().empty();
}

/// The number of exactly that many digits at the position.
std::optional<int> numberAt(std::string_view text, std::size_t position, std::size_t digits) {
    int number = 0;
    const char* begin = text.data() + position;
    const auto [end, error] = std::from_chars(begin, begin + digits, number);
    if (error != std::errc() || end != begin + digits || number < 0) return std::nullopt;
    return number;
}

}  // namespace

ActivityEntry activityEntry(const std::string& toolID, const JobResult& result) {
    ActivityEntry entry{.id = newUUID(),
                        .date = isoDate(std::chrono::system_clock::now()),
                        .toolID = toolID,
                        .subject = activitySubject(result.items),
                        .undo = result.undo};
    for (const ItemResult& item : result.items) {
        entry.inputBytes += item.file.byteSize;
        entry.doneCount += std::holds_alternative<outcome::Done>(item.outcome) ? 1 : 0;
        entry.skippedCount += std::holds_alternative<outcome::Skipped>(item.outcome) ? 1 : 0;
        entry.failedCount += std::holds_alternative<outcome::Failed>(item.outcome) ? 1 : 0;
    }
    for (const auto& output : result.undo.createdFiles) addOutput(entry, output);
    return entry;
}

std::string activitySubject(std::span<const ItemResult> items) {
    if (items.empty()) return {};
    const InputFile& first = items.front().file;
    const std::string name = printable(first.url.filename().native());
    const std::size_t others = items.size() - 1;
    if (areOfOneFolder(items)) return printable(first.root.lexically_normal().filename().native());
    if (others == 0) return name;
    return fmt::format("{} and {} {}", name, others, others == 1 ? "other" : "others");
}

std::string isoDate(std::chrono::system_clock::time_point time) {
    return fmt::format("{:%Y-%m-%dT%H:%M:%SZ}", std::chrono::floor<std::chrono::seconds>(time));
}

std::optional<std::chrono::system_clock::time_point> timeOfISODate(std::string_view text) {
    constexpr std::string_view form = "0000-00-00T00:00:00Z";
    if (text.size() != form.size()) return std::nullopt;
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] != '0' && text[i] != form[i]) return std::nullopt;
    }
    const auto year = numberAt(text, 0, 4), month = numberAt(text, 5, 2), day = numberAt(text, 8, 2);
    const auto hour = numberAt(text, 11, 2), minute = numberAt(text, 14, 2), second = numberAt(text, 17, 2);
    if (!year || !month || !day || !hour || !minute || !second) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(*year),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok() || *hour > 23 || *minute > 59 || *second > 60) return std::nullopt;
    return std::chrono::sys_days(date) + std::chrono::hours(*hour) + std::chrono::minutes(*minute) +
           std::chrono::seconds(*second);
}

std::string undoSentence(const UndoReport& report) {
    const std::string removed = fmt::format("{} new files removed", report.removedOutputs);
    const std::string restored = fmt::format("{} files put back.", report.restoredItems);
    // What did not happen is left out, but something is always said.
    std::string text = report.restoredItems == 0    ? removed + "."
                       : report.removedOutputs == 0 ? restored
                                                    : removed + ", " + restored;
    if (report.problems > 0) {
        text +=
            fmt::format(" {} items couldn't be put back (the Bin may have been emptied).", report.problems);
    }
    if (report.keptBecauseChanged > 0) {
        text += fmt::format(" {} new files were changed after the job, so they were kept.",
                            report.keptBecauseChanged);
    }
    return text;
}

}  // namespace tamble
