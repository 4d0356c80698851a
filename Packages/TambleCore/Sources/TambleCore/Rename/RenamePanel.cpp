#include <TambleCore/Rename/RenamePanel.h>
#include <TambleCore/Rename/RenamePattern.h>

namespace tamble {
namespace {

/// `changes` hold panelText where the text goes.
PanelSection textField(std::string heading, std::string label, Json changes, std::string placeholder = {}) {
    return {.heading = std::move(heading),
            .control = PanelControl::text,
            .choices = {{.label = std::move(label), .changes = std::move(changes)}},
            .placeholder = std::move(placeholder)};
}

PanelSection textField(std::string heading, std::string label, const char* setting) {
    return textField(std::move(heading), std::move(label), settingChange(setting, std::string(panelText)));
}

PanelSection nameField() {
    const RenamePattern::Base text = rename_base::Text{panelText};
    return textField("Name", "New name", settingChange("base", text), "New name, e.g. Goa trip");
}

PanelSection numberField(std::string label, std::string setting, std::int64_t least, std::int64_t most) {
    return {.control = PanelControl::number,
            .choices = {{.label = std::move(label)}},
            .setting = std::move(setting),
            .range = {least, most}};
}

PanelSection keepToggle() {
    const RenamePattern::Base keep = rename_base::Keep{}, text = rename_base::Text{};
    return {.control = PanelControl::toggle,
            .choices = {{.label = "Keep the current names", .changes = settingChange("base", keep)},
                        {.changes = settingChange("base", text)}}};
}

PanelSection matchCaseToggle() {
    return {.control = PanelControl::toggle,
            .choices = {{.label = "Only with the same upper and lower case letters",
                         .changes = settingChange("matchCase", true)},
                        {.changes = settingChange("matchCase", false)}}};
}

PanelSection numberingSection() {
    using Numbering = RenamePattern::Numbering;
    return {
        .heading = "Numbers",
        .control = PanelControl::segments,
        .choices = {{.label = "None", .changes = settingChange("numbering", Numbering::none)},
                    {.label = "Before the name", .changes = settingChange("numbering", Numbering::before)},
                    {.label = "After the name", .changes = settingChange("numbering", Numbering::after)}}};
}

PanelSection letterCaseSection() {
    using LetterCase = RenamePattern::LetterCase;
    return {.heading = "Upper and lower case",
            .control = PanelControl::segments,
            .choices = {{.label = "As it is", .changes = settingChange("letterCase", LetterCase::unchanged)},
                        {.label = "lower case", .changes = settingChange("letterCase", LetterCase::lower)},
                        {.label = "UPPER CASE", .changes = settingChange("letterCase", LetterCase::upper)},
                        {.label = "Title Case", .changes = settingChange("letterCase", LetterCase::title)}}};
}

PanelSection extensionToggle() {
    return {.heading = "Extension",
            .control = PanelControl::toggle,
            .choices = {
                {.label = "Change the extension", .changes = settingChange("newExtension", std::string())},
                {.changes = settingChange("newExtension", Json(nullptr))}}};
}

}  // namespace

OptionsPanel renamePanel() {
    return {
        {nameField(), keepToggle(), textField("Find and replace", "Text to look for", "find"),
         textField({}, "What replaces it", "replaceWith"), matchCaseToggle(),
         textField("More text", "Before the name", "prefix"), textField({}, "After the name", "suffix"),
         numberingSection(), numberField("First number", "startNumber", 0, RenamePattern::largestStartNumber),
         numberField("Digits", "digits", 1, RenamePattern::mostDigits),
         textField({}, "Between the number and the name", "separator"), letterCaseSection(),
         extensionToggle(), textField({}, "New extension", "newExtension")},
        PanelEditor::names,
        {"Rename %n file(s)", "Renaming %n file(s)", "%n file(s) renamed"},
        "Drop the files to rename here"};
}

RenameWayText textOf(RenameWay way) {
    if (way == RenameWay::inPlace) {
        return {"Rename the files",
                "The files themselves get their new names. Undo puts the old names back."};
    }
    return {"Make renamed copies", "Your files keep their names; copies with the new names are saved."};
}

}  // namespace tamble
