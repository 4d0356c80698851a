#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/Support/Settings/OptionsPanel.h>

#include <span>

/// How the settings of a tool stand in its panel.
namespace tamble::PanelState {

/// Whether picking the choice would change nothing. A choice with an empty text stands for every text: with
/// the name "Goa trip" the choice of a name of one's own is chosen.
bool isChosen(const PanelChoice& choice, const Json& settings);

/// What stands in a text field: what the settings hold where its changes hold panelText; empty when the
/// setting is absent or of another case.
std::string typedText(const PanelChoice& choice, const Json& settings);
/// What typing it changes. No text makes a setting absent that is so among the defaults.
Json typing(const PanelChoice& choice, const std::string& text, const Json& defaults);

/// Whether the section has anything to say about these settings and files.
bool isShown(const PanelSection& section, const Json& settings, std::span<const InputFile> files);

}  // namespace tamble::PanelState
