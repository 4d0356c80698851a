#include <TambleCore/PDF/Pages/PageGeometry.h>

#include <algorithm>
#include <cmath>

namespace tamble::pdf {

PageGeometry PageGeometry::of(QPDFObjectHandle page) {
    PageGeometry geometry{.box = PageBox::of(page)};
    if (auto unit = page.getKey("/UserUnit"); unit.isNumber()) {
        const double value = unit.getNumericValue();
        if (std::isfinite(value) && value > 0) geometry.unit = value;
    }
    return geometry;
}

std::optional<PagePixels> pixelsOf(const PageGeometry& page, double dpi) {
    constexpr double pointsPerInch = 72;
    const double width = std::max(1.0, std::ceil(page.shownWidth() * dpi / pointsPerInch));
    const double height = std::max(1.0, std::ceil(page.shownHeight() * dpi / pointsPerInch));
    if (!(width * height <= mostPagePixels)) return std::nullopt;
    return PagePixels{static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace tamble::pdf
