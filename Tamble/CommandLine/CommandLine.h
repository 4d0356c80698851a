#pragma once

#include <Tamble/CommandLine/ExitStatus.h>

#include <span>
#include <string>

namespace tamble {

/// The whole program: does what the words behind its name ask for, and says on standard output and standard
/// error what came of it. Throws nothing.
ExitStatus runCommandLine(std::span<const std::string> words);

}  // namespace tamble
