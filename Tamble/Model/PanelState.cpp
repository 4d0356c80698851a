#include <Tamble/Model/PanelState.h>

#include <algorithm>

namespace tamble::PanelState {
namespace {

/// The text in `settings` where `pattern` holds panelText; null when the two are built otherwise.
const std::string* textAt(const Json& pattern, const Json& settings) {
    if (pattern.is_string() && pattern.get_ref<const std::string&>() == panelText) {
        return settings.get_ptr<const std::string*>();
    }
    if (!pattern.is_object() || !settings.is_object()) return nullptr;
    for (const auto& [key, value] : pattern.items()) {
        const auto found = settings.find(key);
        if (found == settings.end()) continue;
        if (const auto* text = textAt(value, *found)) return text;
    }
    return nullptr;
}

Json withText(const Json& pattern, const std::string& text) {
    if (pattern.is_string() && pattern.get_ref<const std::string&>() == panelText) return text;
    if (!pattern.is_object()) return pattern;
    Json filled = Json::object();
    for (const auto& [key, value] : pattern.items()) filled[key] = withText(value, text);
    return filled;
}

/// Whether the setting is as the choice says, an empty text of which stands for all.
bool fits(const Json& setting, const Json& pattern) {
    if (pattern.is_string() && pattern.get_ref<const std::string&>().empty()) return setting.is_string();
    if (!pattern.is_object() || !setting.is_object()) return setting == pattern;
    return setting.size() == pattern.size() && std::ranges::all_of(pattern.items(), [&](const auto& member) {
               const auto found = setting.find(member.key());
               return found != setting.end() && fits(*found, member.value());
           });
}

bool holds(const Json& settings, const Json& members) {
    return std::ranges::all_of(members.items(), [&](const auto& member) {
        const auto found = settings.find(member.key());
        return found == settings.end() ? member.value().is_null() : fits(*found, member.value());
    });
}

}  // namespace

bool isChosen(const PanelChoice& choice, const Json& settings) {
    return holds(settings, choice.changes);
}

std::string typedText(const PanelChoice& choice, const Json& settings) {
    const auto* text = textAt(choice.changes, settings);
    return text == nullptr ? std::string() : *text;
}

Json typing(const PanelChoice& choice, const std::string& text, const Json& defaults) {
    Json changes = withText(choice.changes, text);
    if (!text.empty()) return changes;
    for (auto& [key, value] : changes.items()) {
        if (value.is_string() && !defaults.contains(key)) value = nullptr;
    }
    return changes;
}

bool isShown(const PanelSection& section, const Json& settings, std::span<const InputFile> files) {
    if (!holds(settings, section.onlyWith)) return false;
    return section.onlyForType.empty() || std::ranges::any_of(files, [&](const InputFile& file) {
               return file.contentType && file.contentType->conformsTo(section.onlyForType);
           });
}

}  // namespace tamble::PanelState
