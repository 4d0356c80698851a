#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tamble {

/// Bytes as text (RFC 4648, section 4), padded.
std::string base64(std::span<const std::byte> bytes);

/// Empty when the text is not whole, padded Base64.
std::optional<std::vector<std::byte>> bytesFromBase64(std::string_view text);

}  // namespace tamble
