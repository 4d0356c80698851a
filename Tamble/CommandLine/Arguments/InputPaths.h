#pragma once

#include <Tamble/CommandLine/Arguments/ArgumentParser.h>

#include <filesystem>
#include <istream>
#include <vector>

namespace tamble {

/// The files and folders that a command was given, as absolute paths: its operands, then, with -0, those on
/// `input`. Throws UsageError when there are none, and for an operand that does not exist; a listed file that
/// is gone by now is left for the scan to count.
std::vector<std::filesystem::path> inputPaths(const CommandDescription& command,
                                              const ParsedArguments& arguments, std::istream& input);

}  // namespace tamble
