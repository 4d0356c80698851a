#pragma once

#include <string>

namespace tamble {

/// The manual page of the program, all commands and tools, in the man(7) macros.
std::string manPage();

}  // namespace tamble
