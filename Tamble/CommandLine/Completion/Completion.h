#pragma once

#include <Tamble/CommandLine/Arguments/CommandOption.h>

#include <string>
#include <vector>

namespace tamble {

/// The completion scripts, made from the descriptions of the commands and tools.
std::string bashCompletion();
std::string zshCompletion();
std::string fishCompletion();

/// Every command and every tool that can run here, as shells complete them.
std::vector<CommandDescription> completedCommands();

/// All spellings of an option with their dashes, its "no-" form among them.
std::vector<std::string> optionSpellings(const CommandOption& option);

/// The text in single quotes as POSIX shells read it.
std::string shellQuoted(std::string_view text);

}  // namespace tamble
