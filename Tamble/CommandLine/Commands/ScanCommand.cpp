#include <Tamble/CommandLine/Arguments/InputPaths.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Report/JobReport.h>
#include <Tamble/CommandLine/Report/NothingFound.h>
#include <Tamble/CommandLine/Report/ResultJson.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/CommandLine/Text/Layout.h>
#include <Tamble/CommandLine/Text/SafeText.h>
#include <Tamble/CommandLine/Text/Terminal.h>

#include <TambleCore/Catalog/Suggestions.h>
#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Intake/KindCounts.h>
#include <TambleCore/Intake/MediaTypes.h>
#include <TambleCore/Support/Json/JsonText.h>
#include <TambleCore/Support/Wording.h>

#include <array>
#include <iostream>

#include <fmt/format.h>

namespace tamble {
namespace {

bool isOfKnownKind(const std::optional<ContentType>& type) {
    return FileTypes::isReadableImage(type) || MediaTypes::isVideo(type) || MediaTypes::isAudio(type) ||
           FileTypes::isPDF(type) || FileTypes::isDocument(type) || FileTypes::isSubtitle(type);
}

/// All but the files.
Json summaryJson(const ScanResult& scan) {
    const KindCounts kinds = KindCounts::of(scan.files);
    Json json = Json::object();
    json["roots"] = encodeJson(scan.roots);
    json.update(scanCountsJson(scan));
    json["kinds"] = encodeJson(kinds);
    json["notes"] = encodeJson(scanNotes(scan));
    Json& tools = json["suggestedTools"] = Json::array();
    for (const auto& tool : suggestedTools(kinds)) tools.push_back(tool.id);
    return json;
}

/// A line for each file, written without a document of them all, which would take most of the scan's time.
std::string scanJson(const ScanResult& scan) {
    std::string text = "{\n  \"files\": [";
    for (const auto& file : scan.files) {
        text += text.ends_with('[') ? "\n    " : ",\n    ";
        appendJson(text, fieldsOf(file));
    }
    text += scan.files.empty() ? "],\n" : "\n  ],\n";
    return text += writeIndentedJson(summaryJson(scan)).substr(std::string_view("{\n").size());
}

struct TreeLine {
    std::string name;
    int count;
};

void addTreeLines(const FolderNode& node, std::vector<TreeLine>& lines) {
    const std::string name = node.depth == 0 ? shownPath(node.url) : safeText(node.name);
    lines.push_back(
        {std::string(2 * static_cast<std::size_t>(node.depth), ' ') + name + "/", node.totalFileCount()});
    for (const auto& child : node.children) addTreeLines(child, lines);
}

std::string treeText(const ScanResult& scan, std::size_t width) {
    std::vector<TreeLine> lines;
    for (const auto& root : scan.roots) addTreeLines(root, lines);
    if (scan.looseFileCount > 0) lines.push_back({"Loose files", scan.looseFileCount});
    constexpr std::size_t countWidth = 16;
    std::size_t column = 0;
    for (const auto& line : lines) column = std::max(column, displayWidth(line.name));
    column = std::min(column, width > countWidth ? width - countWidth : countWidth);
    std::string text;
    for (const auto& line : lines) {
        text += fmt::format("{}  {}\n", padded(shortened(line.name, column), column),
                            countText(line.count, "file", "files"));
    }
    return text;
}

std::string kindsText(const KindCounts& kinds) {
    struct Kind {
        int count;
        std::string_view one;
        std::string_view many;
    };
    const std::array<Kind, 5> all{{{kinds.images, "photo", "photos"},
                                   {kinds.videos, "video", "videos"},
                                   {kinds.audio, "sound", "sounds"},
                                   {kinds.pdfs, "PDF", "PDFs"},
                                   {kinds.documents, "document", "documents"}}};
    std::string text;
    for (const auto& kind : all) {
        if (kind.count > 0) text += (text.empty() ? "" : ", ") + countText(kind.count, kind.one, kind.many);
    }
    return text;
}

std::string scanText(const ScanResult& scan, const Terminal& terminal) {
    if (scan.files.empty() && scan.otherFileCount == 0) return nothingFoundSentence(scan) + '\n';
    std::string text = treeText(scan, terminal.width());
    const KindCounts kinds = KindCounts::of(scan.files);
    const std::string kindsLine = kindsText(kinds);
    if (!text.empty()) text += '\n';
    if (!kindsLine.empty()) text += fmt::format("{}, {}\n", kindsLine, sizeText(scan.totalBytes));
    if (scan.otherFileCount > 0) {
        text += fmt::format("{} of another kind\n", countText(scan.otherFileCount, "file", "files"));
    }
    const auto tools = suggestedTools(kinds);
    if (tools.empty()) return text;
    text += fmt::format("\n{}\n", terminal.strong("Tools that fit"));
    std::size_t column = 0;
    for (const auto& tool : tools) column = std::max(column, tool.id.size());
    for (const auto& tool : tools) {
        text += fmt::format("  {}  {}: {}\n", padded(tool.id, column), localized(tool.title),
                            localized(tool.subtitle));
    }
    return text;
}

}  // namespace

ExitStatus scanPaths(const CommandDescription& command, const ParsedArguments& arguments) {
    const auto paths = inputPaths(command, arguments, std::cin);
    ScanOptions options(!arguments.has("no-subfolders"));
    options.accepts = isOfKnownKind;
    const ScanResult scan = FolderScanner{options}.scan(paths);
    if (arguments.has("json")) {
        printOutput(scanJson(scan) + '\n');
    } else {
        printOutput(scanText(scan, Terminal::output()));
        for (const auto& note : scanNotes(scan)) printError(note + '\n');
    }
    return scan.unreadableCount > 0 ? ExitStatus::someFailed : ExitStatus::allDone;
}

}  // namespace tamble
