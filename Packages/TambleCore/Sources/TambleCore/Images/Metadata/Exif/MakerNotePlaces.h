#pragma once

#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>

namespace tamble::tiff {

/// Where in the structure a maker note names a place: the city, state, country and landmark of Panasonic, the
/// place of Nikon and of Samsung, the home and destination city of Pentax and the city of Casio. `note` is
/// the entry's value. Other makers' notes are not known to name places in words of their own.
std::vector<Range> placesInMakerNote(const Structure& structure, const Entry& note);

}  // namespace tamble::tiff
