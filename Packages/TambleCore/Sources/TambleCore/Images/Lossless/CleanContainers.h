#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

namespace tamble {

/// The four formats' ways to what losslesslyCleaned promises; `removal` is location or everything. Where only
/// the location goes, application data that nothing here understands goes as well: it cannot be shown to be
/// free of it.
std::optional<Bytes> cleanedJpeg(ByteView file, MetadataRemoval removal);
std::optional<Bytes> cleanedPng(ByteView file, MetadataRemoval removal);
std::optional<Bytes> cleanedWebP(ByteView file, MetadataRemoval removal);
std::optional<Bytes> cleanedTiff(ByteView file, MetadataRemoval removal);

/// An EXIF block without location; at least the orientation, if it says more than upright. Empty when nothing
/// is left.
std::optional<Bytes> exifWithoutLocation(ByteView block);

/// A block that keeps the orientation of `block` and nothing else; empty when that is upright.
std::optional<Bytes> exifWithOrientationOnly(const std::optional<Bytes>& block);

}  // namespace tamble
