#pragma once

#include <TambleCore/Images/Codec/Container.h>
#include <TambleCore/Images/Codec/Watch.h>

namespace tamble {

/// What becomes of a decoded picture.
enum class DecodedFor {
    /// A file that holds several pictures is refused.
    newFile,
    /// Of several pictures the first is taken, and of a photo with a thumbnail that is large enough this.
    screen,
};

/// The one picture in the file, upright, turned by `rotation`, its longest side at most `maxPixelSize`: never
/// enlarged, and never decoded much larger than it has to be. The bytes and the watch must outlive it. Throws
/// ConversionError.
vips::VImage decoded(ByteView file, Container container, std::optional<int> maxPixelSize,
                     ImageJobSettings::Rotation rotation, Watch& watch, DecodedFor use = DecodedFor::newFile);

}  // namespace tamble
