#pragma once

#include <TambleCore/Support/FilePath.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tamble {

/// The path as a file URL (RFC 8089), every byte outside the unreserved set percent-encoded: file names are
/// bytes, and this is the one form in which they go through JSON unharmed.
std::string fileURL(const FilePath& path);

/// Empty when the text is not a file URL of this machine or is wrongly encoded.
std::optional<std::filesystem::path> pathFromFileURL(std::string_view url);

/// Percent-encodes every byte but RFC 3986's unreserved set and "/".
std::string percentEncoded(std::string_view bytes);
/// Empty when a "%" is not followed by two hexadecimal digits.
std::optional<std::string> percentDecoded(std::string_view text);

}  // namespace tamble
