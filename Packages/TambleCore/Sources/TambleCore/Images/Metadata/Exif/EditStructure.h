#pragma once

#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>

namespace tamble::tiff {

struct Edit {
    /// Where the picture was taken: GPS, georeference, places in IPTC, XMP and maker notes; a thumbnail that
    /// carries metadata of its own goes too.
    bool withoutLocation = false;
    /// Directories after the main one, with their pictures.
    bool withoutThumbnail = false;
    struct PixelSize {
        int width = 0;
        int height = 0;
    };
    /// The picture is upright and has this size now.
    std::optional<PixelSize> upright = {};
};

/// The TIFF file or EXIF block with the edit done in place: what stays keeps its offset, so that maker notes,
/// which point about, stay readable. Every byte that no table refers to any more is 0 or, at the end, gone.
/// Empty when the structure is not understood or parts of it lie upon one another so that nothing can be
/// taken out safely.
std::optional<Bytes> edited(ByteView block, const Edit& edit);

}  // namespace tamble::tiff
