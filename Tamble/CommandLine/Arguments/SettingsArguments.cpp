#include <Tamble/CommandLine/Arguments/SettingsArguments.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>

#include <TambleCore/Support/Text.h>
#include <TambleCore/Support/Wording.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <fmt/format.h>

namespace tamble {
namespace {

constexpr std::string_view offPrefix = "no-";

/// The type of what is typed behind a field's short option.
const SettingType& shortType(const SettingField& field) {
    if (field.hint.shortCase.empty()) return field.type;
    const auto found = std::ranges::find(field.type.cases, field.hint.shortCase, &SettingCase::name);
    return found == field.type.cases.end() || found->payload.empty() ? field.type : found->payload.front();
}

Completes completion(const SettingType& type) {
    return type.kind == SettingKind::file ? Completes::files : Completes::nothing;
}

CommandOption optionOf(const SettingType& type, std::string name, std::string help) {
    CommandOption option{.name = std::move(name), .help = std::move(help), .completes = completion(type)};
    if (type.kind == SettingKind::boolean) {
        option.isSwitch = true;
        return option;
    }
    option.value = settingSyntax(type);
    option.words = settingWords(type);
    if (type.isOptional) {
        option.value += "|none";
        option.words.push_back("none");
    }
    return option;
}

Json parsedValue(const SettingField& field, const ParsedArguments::Given& given, const Json& present) {
    if (field.hint.parse != nullptr) return field.hint.parse(given.value, present);
    if (given.option == field.flag()) {
        return settingValue(field.type, field.type.kind == SettingKind::boolean && given.value.empty()
                                            ? "true"
                                            : given.value);
    }
    if (field.hint.shortCase.empty()) return settingValue(field.type, given.value);
    Json value = Json::object();
    value[std::string(field.hint.shortCase)]["_0"] = settingValue(shortType(field), given.value);
    return value;
}

/// The changes that one option asks for; nothing for an option that is no setting.
std::optional<Json> changesOf(const SettingsSchema& schema, const ParsedArguments::Given& given,
                              const Json& settings) {
    for (const auto& field : schema.fields) {
        if (!field.hint.isOffered) continue;
        Json changes = Json::object();
        if (field.type.kind == SettingKind::boolean &&
            given.option == std::string(offPrefix) + field.flag()) {
            changes[field.name] = false;
            return changes;
        }
        if (given.option != field.flag() &&
            (field.hint.shortFlag.empty() || given.option != field.hint.shortFlag)) {
            continue;
        }
        changes[field.name] = parsedValue(field, given, settings.value(field.name, Json()));
        return changes;
    }
    return std::nullopt;
}

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    if (!stream || !(content << stream.rdbuf())) {
        throw UsageError(fmt::format("The settings file “{}” can't be read.", file.string()));
    }
    return std::move(content).str();
}

bool isWhole(const SettingsSchema& schema, const Json& document) {
    return document.is_object() && std::ranges::all_of(schema.fields, [&](const SettingField& field) {
               return field.type.isOptional || document.contains(field.name);
           });
}

Json startingPoint(const ToolDefinition& tool, const ParsedArguments& arguments) {
    const auto given = arguments.value("settings");
    if (!given) return tool.defaults;
    const Json document = parseJson(given->starts_with('@') ? contentOf(given->substr(1)) : *given);
    return tool.schema.merged(isWhole(tool.schema, document) ? Json::object() : tool.defaults, document);
}

std::string flagFor(const SettingField& field, const Json& value) {
    if (field.type.kind == SettingKind::boolean && value.is_boolean()) {
        return fmt::format("--{}{}", value.get<bool>() ? "" : offPrefix, field.flag());
    }
    if (field.hint.shortFlag.empty()) return fmt::format("--{} {}", field.flag(), settingText(value));
    if (field.hint.shortCase.empty()) return fmt::format("--{} {}", field.hint.shortFlag, settingText(value));
    const std::string name(field.hint.shortCase);
    if (value.is_object() && value.contains(name)) {
        return fmt::format("--{} {}", field.hint.shortFlag, settingText(value[name].value("_0", Json())));
    }
    return fmt::format("--{} {}", field.flag(), settingText(value));
}

}  // namespace

std::vector<CommandOption> settingOptions(const SettingsSchema& schema) {
    std::vector<CommandOption> options;
    for (const auto& field : schema.fields) {
        if (!field.hint.isOffered) continue;
        const std::string help = localized(field.hint.help);
        if (field.hint.parse != nullptr) {
            options.push_back({.name = field.flag(),
                               .value = std::string(field.hint.syntax),
                               .help = help,
                               .completes = Completes::files});
            continue;
        }
        if (field.hint.shortFlag.empty()) {
            options.push_back(optionOf(field.type, field.flag(), help));
            continue;
        }
        const std::string shortFlag(field.hint.shortFlag);
        options.push_back(optionOf(shortType(field), shortFlag, help));
        options.push_back(
            optionOf(field.type, field.flag(),
                     field.hint.shortCase.empty()
                         ? fmt::format("The same as --{}", shortFlag)
                         : fmt::format("The long form of --{}, with all its cases", shortFlag)));
    }
    options.push_back({.name = "settings",
                       .value = "JSON|@FILE",
                       .help = "All settings at once, written as JSON or read from a file",
                       .completes = Completes::files});
    return options;
}

Json settingsFrom(const ToolDefinition& tool, const ParsedArguments& arguments) {
    Json settings;
    try {
        settings = startingPoint(tool, arguments);
    } catch (const SettingError& error) {
        throw UsageError(fmt::format("--settings: {}", error.what()));
    } catch (const DecodeError& error) {
        throw UsageError(fmt::format("--settings: {}", error.what()));
    }
    for (const auto& given : arguments.options) {
        try {
            if (const auto changes = changesOf(tool.schema, given, settings))
                settings = tool.schema.merged(settings, *changes);
        } catch (const SettingError& error) {
            throw UsageError(fmt::format("--{}: {}", given.option, error.what()));
        }
    }
    try {
        return tool.normalized(settings);
    } catch (const DecodeError& error) {
        throw UsageError(fmt::format("These settings don't fit {}: {}", tool.id, error.what()));
    }
}

std::string flagsFor(const SettingsSchema& schema, const Json& changes) {
    std::string flags;
    for (const auto& [name, value] : changes.items()) {
        const SettingField* field = schema.fieldNamed(name);
        if (field == nullptr) continue;
        if (!flags.empty()) flags += ' ';
        flags += flagFor(*field, value);
    }
    return flags;
}

std::string settingText(const Json& value) {
    if (value.is_null()) return "none";
    if (value.is_string()) {
        auto text = value.get<std::string>();
        return trimmed(text).empty() ? fmt::format("\"{}\"", text) : text;
    }
    if (!value.is_object() || value.size() != 1) return writeJson(value);
    const auto chosen = value.begin();
    const bool hasPayload = chosen->is_object() && chosen->contains("_0");
    return hasPayload ? fmt::format("{}:{}", chosen.key(), settingText((*chosen)["_0"])) : chosen.key();
}

}  // namespace tamble
