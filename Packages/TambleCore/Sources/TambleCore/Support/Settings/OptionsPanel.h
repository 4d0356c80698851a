#pragma once

#include <TambleCore/Support/Json/JsonCoding.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <boost/describe.hpp>

/// What a tool lets people choose, as data: headings, choices with their texts, and the settings each choice
/// changes. The window draws it, the command line prints it; neither knows the tools.
namespace tamble {

/// Stands for what is typed into a text field.
inline constexpr const char* panelText = "TEXT";

/// One thing that can be picked.
struct PanelChoice {
    std::string label;
    std::string description;
    /// The members that picking it sets in the settings; a null member makes an optional setting absent.
    Json changes = Json::object();
};

enum class PanelControl {
    cards,     ///< one of several, each with its description
    segments,  ///< one of a few short words; the description of the chosen one below
    toggle,    ///< on or off: the first choice's changes when on, the second's when off
    number,    ///< a number field for `setting`, with `range`
    text,      ///< a text field, with `placeholder`; the first choice's changes hold panelText where it goes
    password,  ///< a field for the password of the job's Secrets, with `placeholder`
    note,      ///< no control, only its heading and text
};

struct PanelSection {
    std::string heading;
    PanelControl control = PanelControl::cards;
    std::vector<PanelChoice> choices = {};
    /// Shown only after the control labelled `moreLabel`.
    std::string moreLabel = {};
    std::vector<PanelChoice> moreChoices = {};
    /// The one setting of a number field, and its inclusive bounds.
    std::string setting = {};
    std::pair<std::int64_t, std::int64_t> range = {};
    /// Stands in an empty text field.
    std::string placeholder = {};
    std::string note = {};
    /// When not empty, the section is shown only if these members stand so in the settings, and only if some
    /// input is of this content type.
    Json onlyWith = Json::object();
    std::string onlyForType = {};
};

/// What a window shows beside the options, where choosing takes more than they can.
enum class PanelEditor {
    none,
    comparison,     ///< one input before and after
    pageOrder,      ///< all pages, to be put in order, turned and left out
    pageDeletion,   ///< all pages, of which some are picked to go
    pageSelection,  ///< all pages, of which some are picked to be taken out
    signature,      ///< a pad to sign on, and the pages to put the signature on
    names,          ///< a table of old and new names
};
BOOST_DESCRIBE_ENUM(PanelEditor, none, comparison, pageOrder, pageDeletion, pageSelection, signature, names)

/// How a job is spoken of, "%n" standing for the number of its files and "(s)" for their plural: "Convert %n
/// photo(s)", "Converting %n photo(s)", "%n photo(s) converted".
struct JobWords {
    std::string start;
    std::string working;
    std::string done;
};

struct OptionsPanel {
    std::vector<PanelSection> sections;
    PanelEditor editor = PanelEditor::none;
    JobWords words = {};
    /// Stands where files are dropped; empty for the usual invitation.
    std::string invitation = {};
};

/// The change of one member: {"quality": "best"}.
template <typename Value>
Json settingChange(const char* member, const Value& value) {
    Json changes = Json::object();
    changes[member] = encodeJson(value);
    return changes;
}

}  // namespace tamble
