#pragma once

#include <optional>

#include <qpdf/QPDFObjectHandle.hh>

namespace tamble::pdf {

/// How a page is shown.
struct PageGeometry {
    /// The whole page, in its own coordinates.
    QPDFObjectHandle::Rectangle media;
    /// The part of it that is shown.
    QPDFObjectHandle::Rectangle box;
    /// Degrees clockwise by which it is turned to be shown: 0, 90, 180 or 270.
    int rotation = 0;
    /// Points (1/72 inch) per unit of the coordinates.
    double unit = 1;

    static PageGeometry of(QPDFObjectHandle page);

    /// The sides of the page as it is shown, in points.
    double shownWidth() const;
    double shownHeight() const;
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
