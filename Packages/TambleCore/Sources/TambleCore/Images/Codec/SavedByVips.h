#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

#include <vips/vips8>

namespace tamble {

/// What one of libvips's savers to memory makes of the picture. Throws vips::VError.
Bytes savedByVips(const vips::VImage& image, const char* saver, vips::VOption* options);

}  // namespace tamble
