#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tamble::pdf {

/// The bytes as a zlib stream (RFC 1950), the form of /FlateDecode. `level`: 1 (fast) … 12 (small).
std::string deflated(std::string_view bytes, int level);

}  // namespace tamble::pdf
