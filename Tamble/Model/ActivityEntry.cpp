#include <Tamble/Model/ActivityEntry.h>

#include <TambleCore/Support/Text.h>
#include <TambleCore/Support/UUID.h>

#include <algorithm>
#include <charconv>
#include <utility>

#include <fmt/chrono.h>

namespace tamble {
namespace {

std::int64_t sizeOf(const std::filesystem::path& output) {
    const auto fingerprint = FileFingerprint::of(output);
    return fingerprint ? fingerprint->size : 0;
}

std::int64_t sizeOf(const UndoRecord& undo, const std::filesystem::path& output) {
    const auto recorded = undo.createdFingerprints.find(fingerprintKey(output));
    return recorded == undo.createdFingerprints.end() ? sizeOf(output) : recorded->second.size;
}

bool areOfOneFolder(std::span<const InputFile> files) {
    const InputFile& first = files.front();
    const auto isOfFirstRoot = [&](const InputFile& file) {
        return !file.isLoose && file.root == first.root;
    };
    return std::ranges::all_of(files, isOfFirstRoot) && !first.root.lexically_normal().filename().empty();
}

ActivityEntry entryOf(const journal::Job& job, UndoRecord undo,
                      std::chrono::system_clock::time_point finished) {
    ActivityEntry entry{.id = job.id,
                        .date = isoDate(finished),
                        .toolID = job.toolID,
                        .subject = job.subject,
                        .inputBytes = job.inputBytes,
                        .outputFiles = undo.createdFiles};
    for (const auto& output : undo.createdFiles) entry.outputBytes += sizeOf(undo, output);
    entry.undo = std::move(undo);
    return entry;
}

std::string namesSentence(const UndoReport& report) {
    std::string text = report.restoredItems == 1
                           ? "1 file has its old name again."
                           : fmt::format("{} files have their old names again.", report.restoredItems);
    if (report.problems > 0) {
        text += report.problems == 1
                    ? " 1 file couldn't get its old name back."
                    : fmt::format(" {} files couldn't get their old names back.", report.problems);
    }
    return text;
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

journal::Job startedJob(std::string toolID, std::span<const InputFile> files) {
    const std::chrono::duration<double> now = std::chrono::system_clock::now().time_since_epoch();
    journal::Job job{.id = newUUID(),
                     .toolID = std::move(toolID),
                     .subject = activitySubject(files),
                     .started = now.count()};
    for (const InputFile& file : files) job.inputBytes += file.byteSize;
    return job;
}

std::string activitySubject(std::span<const InputFile> files) {
    if (files.empty()) return {};
    const InputFile& first = files.front();
    if (areOfOneFolder(files)) return printable(first.root.lexically_normal().filename().native());
    const std::string name = printable(first.url.filename().native());
    const std::size_t others = files.size() - 1;
    if (others == 0) return name;
    return fmt::format("{} and {} {}", name, others, others == 1 ? "other" : "others");
}

ActivityEntry activityEntry(const journal::Job& job, const JobResult& result) {
    ActivityEntry entry = entryOf(job, result.undo, std::chrono::system_clock::now());
    for (const ItemResult& item : result.items) {
        entry.doneCount += std::holds_alternative<outcome::Done>(item.outcome) ? 1 : 0;
        entry.skippedCount += std::holds_alternative<outcome::Skipped>(item.outcome) ? 1 : 0;
        entry.failedCount += std::holds_alternative<outcome::Failed>(item.outcome) ? 1 : 0;
    }
    return entry;
}

ActivityEntry activityEntry(const journal::Job& job, UndoRecord undo,
                            std::chrono::system_clock::time_point died) {
    ActivityEntry entry = entryOf(job, std::move(undo), died);
    entry.doneCount = static_cast<int>(entry.outputFiles.size() + entry.undo.renamedItems.size());
    return entry;
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
    // The clock's nanoseconds reach from 1677 to 2262.
    if (*year < 1678 || *year > 2261) return std::nullopt;
    if (!date.ok() || *hour > 23 || *minute > 59 || *second > 60) return std::nullopt;
    return std::chrono::sys_days(date) + std::chrono::hours(*hour) + std::chrono::minutes(*minute) +
           std::chrono::seconds(*second);
}

bool isOfRenames(const UndoRecord& record) {
    return !record.renamedItems.empty() && record.createdFiles.empty() && record.trashedItems.empty();
}

std::string undoSentence(const UndoReport& report, const UndoRecord& record) {
    if (isOfRenames(record)) return namesSentence(report);
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
