#pragma once

#include <string>
#include <string_view>

namespace tamble {

/// A user text as it reads on this system. Texts stand in the code as they were given; phrases that name another
/// system ("this Mac") are put right here, when the text is shown.
std::string localized(std::string_view text);

}  // namespace tamble
