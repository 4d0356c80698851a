#pragma once

#include <TambleCore/PDF/PDFJobSettings.h>

#include <array>

#include <qpdf/QPDFObjectHandle.hh>

namespace tamble::pdf {

/// What readers show of a page, in its own units of 1/72 inch (or /UserUnit of these).
struct PageBox {
    double left = 0;
    double bottom = 0;
    double width = 0;
    double height = 0;
    /// How it is turned when it is shown: 0, 90, 180 or 270 degrees clockwise.
    int turn = 0;

    /// The crop box, as far as it is on the medium; US Letter for a page that tells none (as readers do).
    static PageBox of(QPDFObjectHandle page);

    /// As shown: turned upright.
    double shownWidth() const { return turn % 180 == 0 ? width : height; }
    double shownHeight() const { return turn % 180 == 0 ? height : width; }

    /// Brings the unit square in which a picture is drawn to the place on the page as shown, `aspect` (width
    /// by height) kept and centred in it (ISO 32000-1, 8.3.4: a b c d e f).
    std::array<double, 6> matrixFor(const NormalizedRect& place, double aspect) const;
};

}  // namespace tamble::pdf
