#include <Tamble/CommandLine/Arguments/UsageError.h>
#include <Tamble/CommandLine/Commands/ActivityText.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Commands/InterruptedJobs.h>
#include <Tamble/CommandLine/Progress/StopSignals.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/CommandLine/Text/Layout.h>
#include <Tamble/CommandLine/Text/SafeText.h>
#include <Tamble/CommandLine/Text/Terminal.h>
#include <Tamble/Model/ActivityStore.h>

#include <TambleCore/Platform/SystemFileOperations.h>
#include <TambleCore/Support/Wording.h>

#include <fmt/format.h>

namespace tamble {
namespace {

ActivityStore loadedStore() {
    announceInterruptedJobs();
    ActivityStore store(JobEngine{.fileOps = std::make_shared<SystemFileOperations>()});
    store.load();
    return store;
}

std::string toolTitle(const std::string& id) {
    const ToolInfo* tool = ToolCatalog::withID(id);
    return tool == nullptr ? safeText(id) : localized(tool->title);
}

std::string countsText(const ActivityEntry& entry) {
    std::string text = isOfRenames(entry.undo) ? countText(entry.doneCount, "file renamed", "files renamed")
                                               : countText(entry.doneCount, "new file", "new files");
    if (entry.skippedCount > 0) text += fmt::format(", {} skipped", entry.skippedCount);
    if (entry.failedCount > 0) text += fmt::format(", {} failed", entry.failedCount);
    return text;
}

std::string rows(const std::vector<ActivityEntry>& entries) {
    constexpr std::size_t subjectWidth = 32;
    std::size_t titleWidth = 0;
    for (const auto& entry : entries)
        titleWidth = std::max(titleWidth, displayWidth(toolTitle(entry.toolID)));
    std::string text;
    for (const auto& entry : entries) {
        text += fmt::format("{}  {}  {}  {}  {}{}\n", shortID(entry), localDate(entry),
                            padded(toolTitle(entry.toolID), titleWidth),
                            padded(shortened(safeText(entry.subject), subjectWidth), subjectWidth),
                            countsText(entry), entry.undone ? ". Undone" : "");
    }
    return text;
}

/// Which job was meant; null when there is none to undo.
const ActivityEntry* meantEntry(const ActivityStore& store, const ParsedArguments& arguments) {
    const auto& entries = store.entries();
    if (arguments.operands.empty()) {
        const auto found = std::ranges::find(entries, false, &ActivityEntry::undone);
        return found == entries.end() ? nullptr : &*found;
    }
    const std::string& id = arguments.operands.front();
    std::vector<const ActivityEntry*> matches;
    for (const auto& entry : entries) {
        const bool isPrefix = entry.id.size() >= id.size() &&
                              std::ranges::equal(id, entry.id.substr(0, id.size()), {}, ::toupper, ::toupper);
        if (isPrefix && !id.empty()) matches.push_back(&entry);
    }
    if (matches.empty())
        throw UsageError(fmt::format("There is no job “{}”. “tamble activity” lists them.", id));
    if (matches.size() > 1)
        throw UsageError(fmt::format("Several jobs begin with “{}”: type more of the ID.", id));
    return matches.front();
}

}  // namespace

ExitStatus listActivity(const ParsedArguments& arguments) {
    ActivityStore store = loadedStore();
    if (arguments.has("clear")) {
        const auto count = static_cast<std::int64_t>(store.entries().size());
        store.clear();
        const std::string text = fmt::format("Forgot {}.\n", countText(count, "job", "jobs"));
        printOutput(arguments.has("json") ? "[]\n" : text);
    } else if (arguments.has("json")) {
        printOutput(writeIndentedJson(encodeJson(store.entries())) + '\n');
    } else {
        printOutput(store.entries().empty() ? "Finished jobs will show up here.\n" : rows(store.entries()));
    }
    return ExitStatus::allDone;
}

ExitStatus undoJob(const ParsedArguments& arguments) {
    if (arguments.operands.size() > 1) throw UsageError("undo takes one job at a time.");
    ActivityStore store = loadedStore();
    const ActivityEntry* entry = meantEntry(store, arguments);
    if (entry == nullptr) {
        printError("There is no job to undo.\n");
        return ExitStatus::someFailed;
    }
    if (entry->undone) {
        printError("This job was undone from Activity.\n");
        return ExitStatus::someFailed;
    }
    const std::string id = entry->id;
    const UndoRecord record = entry->undo;
    const auto report = [&] {
        // Taking half of a job back would be worse than waiting.
        const StopSignals signals([] { printError("Undoing; finishing first.\n"); });
        return store.undo(id);
    }();
    if (!report) {
        printError("This job is being undone already.\n");
        return ExitStatus::someFailed;
    }
    if (arguments.has("json")) {
        Json json = Json::object();
        json["id"] = id;
        json["report"] = encodeJson(*report);
        printOutput(writeIndentedJson(json) + '\n');
    } else {
        printOutput(localized(undoSentence(*report, record)) + '\n');
    }
    return report->problems > 0 ? ExitStatus::someFailed : ExitStatus::allDone;
}

}  // namespace tamble
