#pragma once

#include <TambleCore/Support/Json/Json.h>

#include <string_view>

namespace tamble {

/// How a signature is typed: the PNG file, the page counted from 1 and the place in percent of the page,
/// left, top, width and height.
inline constexpr std::string_view signatureSyntax = "PNG[@PAGE[:LEFT,TOP,WIDTH,HEIGHT]]";

/// The list of SignaturePlacements in JSON with one more for `text`. Without a place the signature goes to
/// the lower right corner, without a page to the first. Throws SettingError.
Json withSignature(std::string_view text, const Json& present);

}  // namespace tamble
