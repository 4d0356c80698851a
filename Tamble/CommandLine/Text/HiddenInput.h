#pragma once

#include <optional>
#include <string>

namespace tamble {

/// Asks on the terminal for a line that is not shown while it is typed; empty when there is no terminal, or
/// its end was reached.
std::optional<std::string> askHidden(const std::string& question);

}  // namespace tamble
