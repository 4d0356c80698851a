#pragma once

#include <TambleCore/PDF/Structure/PageBox.h>

#include <optional>

namespace tamble::pdf {

/// How large a page is shown.
struct PageGeometry {
    PageBox box;
    /// Points (1/72 inch) per unit of the box.
    double unit = 1;

    static PageGeometry of(QPDFObjectHandle page);

    /// In points.
    double shownWidth() const { return unit * box.shownWidth(); }
    double shownHeight() const { return unit * box.shownHeight(); }
};

/// Sides in pixels.
struct PagePixels {
    int width = 0;
    int height = 0;
    friend bool operator==(const PagePixels&, const PagePixels&) = default;
};

/// The most pixels that a page is drawn with: what a worker and the program that draws for it can each hold
/// within a gibibyte. A0 at 300 dpi has 140 millions.
inline constexpr double mostPagePixels = 160e6;

/// The sides of the page's picture at so many dots per inch; empty when it would have more pixels than can be
/// drawn.
std::optional<PagePixels> pixelsOf(const PageGeometry& page, double dpi);

}  // namespace tamble::pdf
