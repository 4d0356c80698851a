#pragma once

#include <TambleCore/Platform/ContentType.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/describe.hpp>

namespace tamble {

/// The formats that pictures can be saved in.
enum class ImageFormat { webp, jpeg, png, heic, tiff, gif, avif };
BOOST_DESCRIBE_ENUM(ImageFormat, webp, jpeg, png, heic, tiff, gif, avif)

std::string_view displayName(ImageFormat format);
/// Without the dot.
std::string_view fileExtension(ImageFormat format);
/// The identifier of the format's content type.
std::string_view contentTypeIdentifier(ImageFormat format);
/// Whether the format takes a compression quality.
bool isLossy(ImageFormat format);
/// Whether the format keeps an alpha channel.
bool supportsTransparency(ImageFormat format);

/// What people also call it on the command line, as "jpg".
std::vector<std::string> otherNames(ImageFormat format);

/// The format whose content type the given type conforms to.
std::optional<ImageFormat> imageFormat(const std::optional<ContentType>& type);

}  // namespace tamble
