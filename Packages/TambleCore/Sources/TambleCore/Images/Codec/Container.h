#pragma once

#include <TambleCore/Images/ImageFormat.h>
#include <TambleCore/Images/Metadata/Metadata.h>

namespace tamble {

/// The kinds of picture files that can be read.
enum class Container { jpeg, png, webp, tiff, gif, heic, avif, jpegXL, jpeg2000, bmp, ico, icns, cameraRaw };
BOOST_DESCRIBE_ENUM(Container, jpeg, png, webp, tiff, gif, heic, avif, jpegXL, jpeg2000, bmp, ico, icns,
                    cameraRaw)

/// What the file's first bytes say it is. Camera raw files look like TIFF and others: `name` tells them
/// apart.
std::optional<Container> containerOf(ByteView file, const std::filesystem::path& name);

/// The format in which such a file can be written again.
std::optional<ImageFormat> imageFormat(Container container);

/// Whether the pixels of such a file are as its maker left them, not an approximation by a lossy codec.
bool keepsExactPixels(Container container, ByteView file);

}  // namespace tamble
