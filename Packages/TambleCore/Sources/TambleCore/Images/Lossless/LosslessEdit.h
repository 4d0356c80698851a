#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

namespace tamble {

/// The file with the metadata that `removal` names taken out (and all data after the picture's end), the
/// coded picture bit for bit as it was and still shown upright. For JPEG, PNG, WebP and TIFF; empty when the
/// file's structure does not allow it, so that the picture has to be decoded.
std::optional<Bytes> losslesslyCleaned(ByteView file, ImageFormat format, MetadataRemoval removal);

/// The JPEG turned by its stored orientation and then by `rotation`, without re-encoding: orientation says
/// upright, the thumbnail is gone, other metadata stays. Empty when that would cut off partial blocks at an
/// edge or the file is not understood.
std::optional<Bytes> losslesslyRotated(ByteView jpeg, ImageJobSettings::Rotation rotation);

}  // namespace tamble
