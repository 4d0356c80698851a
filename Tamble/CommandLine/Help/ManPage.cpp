#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Arguments/PasswordArguments.h>
#include <Tamble/CommandLine/Help/HelpPages.h>
#include <Tamble/CommandLine/Help/ManPage.h>
#include <Tamble/CommandLine/Version.h>

#include <TambleCore/Support/Wording.h>

#include <fmt/format.h>

namespace tamble {
namespace {

/// Plain text for roff: nothing in it is read as a request or an escape.
std::string escaped(std::string_view text) {
    std::string result;
    bool atLineStart = true;
    for (const char c : text) {
        if (atLineStart && (c == '.' || c == '\'')) result += "\\&";
        atLineStart = c == '\n';
        switch (c) {
            case '\\':
                result += "\\e";
                break;
            // A plain hyphen would be set as a typographic one, which cannot be copied into a shell.
            case '-':
                result += "\\-";
                break;
            case '\n':
                result += "\n.br\n";
                break;
            default:
                result += c;
        }
    }
    return result;
}

std::string upperCase(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return text;
}

std::string entryText(const HelpEntry& entry) {
    return fmt::format(".TP\n.B {}\n{}\n", escaped(entry.term), escaped(entry.text));
}

std::string body(const HelpSection& section) {
    std::string text;
    if (!section.text.empty()) text += escaped(section.text) + "\n";
    for (const auto& entry : section.entries) text += entryText(entry);
    if (!section.note.empty()) text += fmt::format(".PP\n{}\n", escaped(section.note));
    return text;
}

std::string chapter(const HelpSection& section) {
    return fmt::format(".SH {}\n{}", escaped(upperCase(section.heading)), body(section));
}

std::string commandText(const CommandDescription& command) {
    std::string text =
        entryText({fmt::format("tamble {} {}", command.name, command.operands), command.summary + "."});
    if (command.options.size() <= 1) return text;
    text += ".RS\n";
    for (const auto& option : command.options) {
        if (option.name != "help") text += entryText({option.usage(), option.help + "."});
    }
    return text + ".RE\n";
}

std::string toolText(const ToolInfo& info) {
    std::string text = fmt::format(".SS {}\n{}: {}.\n", escaped(info.id), escaped(localized(info.title)),
                                   escaped(localized(info.subtitle)));
    for (const auto& section : panelSections(*ToolCatalog::definition(info.id))) {
        if (!section.heading.empty()) text += fmt::format(".PP\n.I {}\n", escaped(section.heading));
        text += body(section);
    }
    return text;
}

std::string settingsText(const ToolInfo& info) {
    const ToolDefinition& tool = *ToolCatalog::definition(info.id);
    std::string text =
        fmt::format(".PP\n.I All settings of {}\n{}{}", escaped(info.id), body(settingsSection(tool)),
                    body(optionSection({}, passwordOptions(tool.password))));
    if (isRenaming(tool)) text += body(optionSection({}, renamingOptions()));
    return text;
}

}  // namespace

std::string manPage() {
    std::string page = fmt::format(
        ".TH TAMBLE 1 \"\" \"Tamble {}\"\n.SH NAME\ntamble \\- every everyday file tool in one place\n"
        ".SH SYNOPSIS\n.B tamble\n.I TOOL PATH\n\\&...\n.RI [ options ]\n.br\n.B tamble\n.I COMMAND\n",
        version);
    page += ".SH DESCRIPTION\n" + escaped(overviewPage().summary) + "\n";
    page += ".SH COMMANDS\n";
    for (const auto& command : commands()) page += commandText(command);
    page += ".SH OPTIONS OF EVERY TOOL\n";
    page += body(optionSection({}, savingOptions())) + body(optionSection({}, runningOptions()));
    page += ".SH TOOLS\n";
    for (const ToolInfo& info : ToolCatalog::all()) {
        if (ToolCatalog::definition(info.id) != nullptr) page += toolText(info) + settingsText(info);
    }
    page += chapter(exitStatusSection()) + chapter(environmentSection()) + chapter(examplesSection());
    page +=
        ".SH FILES\n.TP\n.I ~/.local/share/tamble/activity.json\nThe finished jobs, for\n.BR \"tamble undo\" "
        ".\n";
    return page;
}

}  // namespace tamble
