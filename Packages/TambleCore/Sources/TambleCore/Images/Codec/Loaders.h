#pragma once

#include <TambleCore/Images/Codec/Container.h>

#include <vips/vips8>

namespace tamble {

struct LoadOptions {
    /// By how much the sides are divided while decoding: 1, 2, 4 or 8, where the container's decoder can
    /// (JPEG).
    int shrink = 1;
    /// Which picture of the file.
    int page = 0;
    /// The small picture that HEIF files hold of it, if there is one.
    bool thumbnail = false;
};

/// The picture in the file, its header read and its rows decoded once from top to bottom when they are asked
/// for. The bytes must outlive it. Decoding fails at the first missing byte. Throws
/// ConversionError::unreadable.
vips::VImage opened(ByteView file, Container container, const LoadOptions& options = {});

}  // namespace tamble
