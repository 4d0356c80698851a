#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Help/HelpPages.h>
#include <Tamble/CommandLine/Text/Amounts.h>

#include <TambleCore/Support/Wording.h>

#include <fmt/format.h>

namespace tamble {
namespace {

/// One section for each family that has a tool which can run here, in catalog order.
std::vector<HelpSection> familySections() {
    std::vector<HelpSection> sections;
    for (const ToolInfo& tool : ToolCatalog::all()) {
        if (!ToolCatalog::unavailableReason(tool.id).empty()) continue;
        const std::string_view family = title(tool.category);
        if (sections.empty() || sections.back().heading != family)
            sections.push_back({.heading = std::string(family)});
        sections.back().entries.push_back(
            {tool.id, fmt::format("{}: {}", localized(tool.title), localized(tool.subtitle))});
    }
    return sections;
}

HelpSection commandSection() {
    HelpSection section{.heading = "Commands"};
    for (const auto& command : commands()) {
        const bool hasOperands = !command.operands.empty();
        section.entries.push_back(
            {hasOperands ? fmt::format("{} {}", command.name, command.operands) : command.name,
             command.summary});
    }
    return section;
}

std::string missingTools() {
    const auto missing = std::ranges::count_if(ToolCatalog::all(), [](const ToolInfo& tool) {
        return !ToolCatalog::unavailableReason(tool.id).empty();
    });
    return missing == 0 ? std::string()
                        : fmt::format("“tamble tools” lists {} that can't run here yet.",
                                      countText(missing, "more tool", "more tools"));
}

}  // namespace

HelpPage overviewPage() {
    HelpPage page{.summary =
                      "Tamble has every everyday file tool in one place. New files are saved next to your "
                      "originals, nothing leaves this computer, and every job can be undone.",
                  .usage = {"tamble TOOL PATH… [options]", "tamble TOOL --help", "tamble COMMAND"},
                  .sections = familySections()};
    if (!page.sections.empty()) page.sections.back().note = missingTools();
    page.sections.push_back(commandSection());
    page.sections.push_back(examplesSection());
    page.sections.push_back({.heading = "More",
                             .entries = {{"TOOL --help", "All options of a tool, with what they mean"},
                                         {"-V, --version", "Show the version"},
                                         {"-h, --help", "Show this help"}}});
    return page;
}

HelpPage commandPage(const CommandDescription& command) {
    return {.summary = command.summary + ".",
            .usage = {fmt::format("tamble {}{}{} [options]", command.name,
                                  command.operands.empty() ? "" : " ", command.operands)},
            .sections = {optionSection("Options", command.options)}};
}

HelpSection exitStatusSection() {
    return {.heading = "Exit status",
            .entries = {{"0", "All files were done or skipped."},
                        {"1", "Some file failed or could not be read, or there was nothing to work on."},
                        {"2", "The command line was not understood; nothing was touched."},
                        {"130", "Interrupted before saving; nothing was saved."}}};
}

HelpSection environmentSection() {
    return {
        .heading = "Environment",
        .entries = {{"NO_COLOR", "When set, nothing is coloured."},
                    {"COLUMNS", "The width of help texts where there is no terminal."},
                    {"TAMBLE_LOG", "When 1, the log goes to standard error instead of the system journal."}}};
}

HelpSection examplesSection() {
    return {
        .heading = "Examples",
        .entries = {
            {"tamble image.convert --to webp Photos/", "WebP copies next to the originals"},
            {"tamble image.resize --size 1280 *.jpg --save small", "Smaller copies in a folder"},
            {"tamble pdf.merge cover.pdf scan*.jpg report.pdf --name Report", "One PDF of PDFs and photos"},
            {"tamble pdf.extractPages report.pdf --take 1-3,5", "Some pages as a new PDF"},
            {"tamble files.rename Goa/ --text Goa --numbering after", "Numbered names; -n shows them"},
            {"tamble undo", "Take the last job back"}}};
}

}  // namespace tamble
