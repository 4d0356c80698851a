#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Arguments/PasswordArguments.h>
#include <Tamble/CommandLine/Arguments/SettingsArguments.h>
#include <Tamble/CommandLine/Help/HelpPages.h>

#include <TambleCore/Support/Wording.h>

#include <fmt/format.h>

namespace tamble {
namespace {

/// Of the changes, those that the tool's defaults do not hold already.
Json withoutDefaults(const Json& changes, const Json& defaults) {
    Json needed = Json::object();
    for (const auto& [name, value] : changes.items()) {
        if (defaults.value(name, Json()) != value) needed[name] = value;
    }
    return needed;
}

HelpEntry choiceEntry(const ToolDefinition& tool, const PanelChoice& choice) {
    const Json needed = withoutDefaults(choice.changes, tool.defaults);
    std::string text = localized(choice.label);
    if (!choice.description.empty()) text += (text.empty() ? "" : ": ") + localized(choice.description);
    if (needed.empty()) text += text.empty() ? "(default)" : " (default)";
    return {flagsFor(tool.schema, needed.empty() ? choice.changes : needed), std::move(text)};
}

HelpEntry numberEntry(const ToolDefinition& tool, const PanelSection& section) {
    const SettingField* field = tool.schema.fieldNamed(section.setting);
    const std::string label = section.choices.empty() ? section.heading : section.choices.front().label;
    std::string flag = section.setting;
    if (field != nullptr)
        flag = field->hint.shortFlag.empty() ? field->flag() : std::string(field->hint.shortFlag);
    return {fmt::format("--{} NUMBER", flag),
            fmt::format("{}, {} to {}", localized(label), section.range.first, section.range.second)};
}

HelpSection panelSection(const ToolDefinition& tool, const PanelSection& section) {
    HelpSection shown{.heading = localized(section.heading)};
    switch (section.control) {
        case PanelControl::number:
            shown.entries.push_back(numberEntry(tool, section));
            break;
        case PanelControl::password:
        case PanelControl::note:
            break;
        case PanelControl::text:
        case PanelControl::cards:
        case PanelControl::segments:
        case PanelControl::toggle:
            for (const auto& choice : section.choices) shown.entries.push_back(choiceEntry(tool, choice));
            for (const auto& choice : section.moreChoices) shown.entries.push_back(choiceEntry(tool, choice));
            break;
    }
    // The second state of a toggle has no words of its own: off.
    if (section.control == PanelControl::toggle && section.choices.size() == 2 &&
        section.choices.back().label.empty() && section.choices.back().description.empty()) {
        shown.entries.pop_back();
    }
    shown.note = localized(section.note);
    return shown;
}

std::string defaultText(const ToolDefinition& tool, const CommandOption& option) {
    for (const auto& field : tool.schema.fields) {
        if (field.flag() != option.name) continue;
        const Json value = tool.defaults.value(field.name, Json());
        if (field.type.kind == SettingKind::boolean) return value == Json(true) ? "on" : "";
        const bool isNothing = value.is_null() || value.is_array() || value == Json("");
        return isNothing ? "" : settingText(value);
    }
    return {};
}

}  // namespace

std::vector<HelpSection> panelSections(const ToolDefinition& tool) {
    std::vector<HelpSection> sections;
    for (const auto& section : tool.panel.sections) {
        HelpSection shown = panelSection(tool, section);
        // A password has options of its own.
        if (shown.entries.empty() && shown.note.empty()) continue;
        // A section without a heading belongs to the one before it.
        if (shown.heading.empty() && !sections.empty()) {
            auto& last = sections.back();
            std::ranges::move(shown.entries, std::back_inserter(last.entries));
            if (!shown.note.empty()) last.note += (last.note.empty() ? "" : "\n") + shown.note;
        } else {
            sections.push_back(std::move(shown));
        }
    }
    return sections;
}

HelpSection settingsSection(const ToolDefinition& tool) {
    HelpSection section{.heading = "All settings"};
    for (const auto& option : settingOptions(tool.schema)) {
        const std::string byDefault = defaultText(tool, option);
        const std::string usage = option.isSwitch ? fmt::format("--[no-]{}", option.name) : option.usage();
        section.entries.push_back({usage, byDefault.empty()
                                              ? option.help
                                              : fmt::format("{} (default: {})", option.help, byDefault)});
    }
    return section;
}

HelpPage toolPage(const ToolInfo& info, const ToolDefinition& tool) {
    HelpPage page{.summary = fmt::format("{}: {}", localized(info.title), localized(info.subtitle)),
                  .usage = {fmt::format("tamble {} PATH… [options]", tool.id)},
                  .sections = panelSections(tool)};
    page.sections.push_back(settingsSection(tool));
    if (tool.password != PasswordUse::none)
        page.sections.push_back(optionSection("The password", passwordOptions(tool.password)));
    if (isRenaming(tool)) {
        page.sections.push_back(optionSection("The files or copies of them", renamingOptions()));
    }
    page.sections.push_back(
        optionSection(isRenaming(tool) ? "Where copies go" : "Where new files go", savingOptions()));
    page.sections.push_back(optionSection("The job", runningOptions()));
    return page;
}

}  // namespace tamble
