#pragma once

#include <TambleCore/Images/Codec/Container.h>
#include <TambleCore/Images/Codec/Watch.h>

namespace tamble {

/// What is done with a file that holds several pictures.
enum class SeveralPictures { refused, firstIsTaken };

/// The one picture in the file, upright, turned by `rotation`, its longest side at most `maxPixelSize`: never
/// enlarged, and never decoded much larger than it has to be. The bytes and the watch must outlive it. Throws
/// ConversionError.
vips::VImage decoded(ByteView file, Container container, std::optional<int> maxPixelSize,
                     ImageJobSettings::Rotation rotation, Watch& watch,
                     SeveralPictures several = SeveralPictures::refused);

}  // namespace tamble
