#pragma once

#include <string_view>

namespace tamble {

inline constexpr std::string_view version = TAMBLE_VERSION;

}  // namespace tamble
