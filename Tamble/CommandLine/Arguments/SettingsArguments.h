#pragma once

#include <Tamble/CommandLine/Arguments/ArgumentParser.h>

#include <TambleCore/Jobs/ToolDefinition.h>

namespace tamble {

/// The options that a tool's settings make: one for each field, the short one that people expect before it,
/// and
/// --settings for all at once.
std::vector<CommandOption> settingOptions(const SettingsSchema& schema);

/// The tool's settings as the options ask for them, in their full JSON form. They start from the tool's
/// defaults, or from --settings: a whole document stands for itself, one that leaves required members out
/// changes those it names. Throws UsageError.
Json settingsFrom(const ToolDefinition& tool, const ParsedArguments& arguments);

/// How such changes of the settings are typed, as "--to webp --no-remove-location".
std::string flagsFor(const SettingsSchema& schema, const Json& changes);

/// How a setting's value is typed: the inverse of settingValue(). In quotes where a shell needs them to see
/// the text at all.
std::string settingText(const Json& value);

}  // namespace tamble
