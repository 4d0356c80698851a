#include <TambleCore/PDF/Photos/PhotoLayout.h>

#include <algorithm>
#include <utility>

namespace tamble::pdf {
namespace {

constexpr double pointsPerInch = 72;
/// Of photos that tell none: that of a screen.
constexpr double usualResolution = 96;
/// Half an inch.
constexpr double margin = 36;
/// The longest side of a page (ISO 32000-1, annex C).
constexpr double longestSide = 14400;
/// The shortest (ibid.).
constexpr double shortestSide = 3;

struct Size {
    double width = 0;
    double height = 0;
};

bool isTurned(const Photo& photo) {
    return photo.orientation >= 5 && photo.orientation <= 8;
}

/// Upright, in points.
Size ownSize(const Photo& photo) {
    Size size{photo.width / photo.resolutionX.value_or(usualResolution) * pointsPerInch,
              photo.height / photo.resolutionY.value_or(usualResolution) * pointsPerInch};
    if (isTurned(photo)) std::swap(size.width, size.height);
    const double room = longestSide - 2 * margin;
    double factor = std::min({1.0, room / size.width, room / size.height});
    factor = std::max({factor, shortestSide / size.width, shortestSide / size.height});
    return {size.width * factor, size.height * factor};
}

Size paper(PDFPageSize size) {
    // ISO 216 A4, and ANSI Letter.
    return size == PDFPageSize::a4 ? Size{595.28, 841.89} : Size{612, 792};
}

/// For each orientation of EXIF, where the stored picture's corners come to lie in the box.
std::array<double, 6> matrix(int orientation, double x, double y, Size box) {
    const auto [w, h] = box;
    switch (orientation) {
        case 2:
            return {-w, 0, 0, h, x + w, y};
        case 3:
            return {-w, 0, 0, -h, x + w, y + h};
        case 4:
            return {w, 0, 0, -h, x, y + h};
        case 5:
            return {0, -h, -w, 0, x + w, y + h};
        case 6:
            return {0, -h, w, 0, x, y + h};
        case 7:
            return {0, h, w, 0, x, y};
        case 8:
            return {0, h, -w, 0, x + w, y};
        default:
            return {w, 0, 0, h, x, y};
    }
}

}  // namespace

PhotoLayout layoutOf(const Photo& photo, PDFPageSize size, bool hasMargin) {
    const double border = hasMargin ? margin : 0;
    Size picture = ownSize(photo);
    Size page{picture.width + 2 * border, picture.height + 2 * border};
    if (size != PDFPageSize::fitPhoto) {
        page = paper(size);
        if (picture.width > picture.height) std::swap(page.width, page.height);
        const double factor =
            std::min((page.width - 2 * border) / picture.width, (page.height - 2 * border) / picture.height);
        picture = {picture.width * factor, picture.height * factor};
    }
    return {.width = page.width,
            .height = page.height,
            .matrix = matrix(photo.orientation, (page.width - picture.width) / 2,
                             (page.height - picture.height) / 2, picture)};
}

}  // namespace tamble::pdf
