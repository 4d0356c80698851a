#pragma once

#include <Tamble/CommandLine/Arguments/ArgumentParser.h>

#include <TambleCore/Jobs/ToolDefinition.h>

#include <iosfwd>
#include <span>

namespace tamble {

/// The options that say where a tool's password comes from; none for a tool that takes none. It is never an
/// argument itself: those can be seen by everybody on the machine.
std::span<const CommandOption> passwordOptions(PasswordUse use);

/// The password as the options ask for it: the first line of a file or of `standardInput`, or typed on the
/// terminal without being shown; a new one is asked for twice. A tool that is about a password asks by
/// itself. Throws UsageError when it cannot be had.
Secrets secretsFrom(const ToolDefinition& tool, const ParsedArguments& arguments,
                    std::istream& standardInput);

}  // namespace tamble
