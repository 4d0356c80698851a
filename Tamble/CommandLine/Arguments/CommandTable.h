#pragma once

#include <Tamble/CommandLine/Arguments/CommandOption.h>

#include <TambleCore/Jobs/ToolDefinition.h>

#include <span>
#include <string_view>

namespace tamble {

/// The commands that are not tools, in the order of the help.
std::span<const CommandDescription> commands();
/// Null when there is no such command.
const CommandDescription* commandNamed(std::string_view name);

/// Options of every tool: where new files go, and how the job runs.
std::span<const CommandOption> savingOptions();
std::span<const CommandOption> runningOptions();

/// Whether the tool gives files new names, and makes new files only where copies are asked for.
bool isRenaming(const ToolDefinition& tool);
/// The options that only such a tool has, beside its settings.
std::span<const CommandOption> renamingOptions();

/// A tool as a command: its settings, then the options of every tool.
CommandDescription toolCommand(const ToolDefinition& tool);
/// The command `estimate` for one tool, with the settings that it takes.
CommandDescription estimateCommand(const ToolDefinition& tool);

}  // namespace tamble
