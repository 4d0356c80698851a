#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tamble {

/// In SI units as file managers show them: "0 bytes", "1 byte", "999 bytes", "4.2 MB".
std::string sizeText(std::int64_t bytes);

/// With the digits of large numbers grouped: "1 file", "12,345 files".
std::string countText(std::int64_t count, std::string_view one, std::string_view many);

/// Rounded as people say it: "1 s", "2 min 5 s", "3 h 10 min".
std::string durationText(double seconds);

/// "81% smaller", "3% larger", "the same size".
std::string changeText(std::int64_t bytesBefore, std::int64_t bytesAfter);

}  // namespace tamble
