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

/// A tool as a command: its settings, then the options of every tool.
CommandDescription toolCommand(const ToolDefinition& tool);
/// The command `estimate` for one tool, with the settings that it takes.
CommandDescription estimateCommand(const ToolDefinition& tool);

}  // namespace tamble
