#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace tamble::pdf {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

}  // namespace tamble::pdf
