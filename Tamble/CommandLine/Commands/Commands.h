#pragma once

#include <Tamble/CommandLine/Arguments/ArgumentParser.h>
#include <Tamble/CommandLine/ExitStatus.h>

#include <TambleCore/Catalog/ToolCatalog.h>

/// Each command of the program as one function over what was typed behind its name. They throw UsageError.
namespace tamble {

ExitStatus listTools(const ParsedArguments& arguments);
ExitStatus scanPaths(const CommandDescription& command, const ParsedArguments& arguments);
ExitStatus listActivity(const ParsedArguments& arguments);
ExitStatus undoJob(const ParsedArguments& arguments);
ExitStatus printCompletion(const ParsedArguments& arguments);
ExitStatus printManPage();

/// The words behind "estimate": a tool, its inputs and settings.
ExitStatus estimateOutput(std::span<const std::string> words);

/// Runs a tool on its inputs, or shows what it would do.
ExitStatus runTool(const ToolDefinition& tool, const CommandDescription& command,
                   const ParsedArguments& arguments);

/// Gives files new names in place or makes renamed copies, or shows what it would do.
ExitStatus renameFiles(const ToolDefinition& tool, const CommandDescription& command,
                       const ParsedArguments& arguments);

/// The tool of that id. Throws UsageError when there is none, naming the nearest, and when it cannot run
/// here.
const ToolDefinition& requiredTool(std::string_view id);

}  // namespace tamble
