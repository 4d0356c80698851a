#pragma once

#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/PDF/Photos/Photo.h>

#include <array>

namespace tamble::pdf {

/// A page for one photo; lengths in points of 1/72 inch.
struct PhotoLayout {
    double width = 0;
    double height = 0;
    /// Brings the unit square in which a picture is drawn into its upright place (ISO 32000-1, 8.3.4: a b c d
    /// e f).
    std::array<double, 6> matrix{};
};

PhotoLayout layoutOf(const Photo& photo, PDFPageSize size, bool hasMargin);

}  // namespace tamble::pdf
