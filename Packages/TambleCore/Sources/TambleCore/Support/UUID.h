#pragma once

#include <string>

namespace tamble {

/// A new random UUID (RFC 9562, version 4) in upper case.
std::string newUUID();

/// Whether the text has the form of a UUID, in either case.
bool isUUID(const std::string& text);

}  // namespace tamble
