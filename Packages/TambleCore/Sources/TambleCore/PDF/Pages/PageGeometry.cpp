#include <TambleCore/PDF/Pages/PageGeometry.h>

#include <algorithm>
#include <cmath>

namespace tamble::pdf {
namespace {

using Rectangle = QPDFObjectHandle::Rectangle;

constexpr double pointsPerInch = 72;

/// What a page without a readable size has.
Rectangle letter() {
    return {0, 0, 612, 792};
}

/// The page's own or inherited value.
QPDFObjectHandle attribute(QPDFObjectHandle node, const std::string& key) {
    // Deeper than any real tree of pages; a broken one may turn in circles.
    constexpr int deepest = 100;
    for (int depth = 0; depth < deepest && node.isDictionary(); ++depth) {
        if (auto value = node.getKey(key); !value.isNull()) return value;
        node = node.getKey("/Parent");
    }
    return QPDFObjectHandle::newNull();
}

std::optional<Rectangle> rectangle(QPDFObjectHandle value) {
    if (!value.isRectangle()) return std::nullopt;
    const Rectangle stored = value.getArrayAsRectangle();
    if (!std::isfinite(stored.llx + stored.lly + stored.urx + stored.ury)) return std::nullopt;
    return Rectangle(std::min(stored.llx, stored.urx), std::min(stored.lly, stored.ury),
                     std::max(stored.llx, stored.urx), std::max(stored.lly, stored.ury));
}

Rectangle within(const Rectangle& box, const Rectangle& outer) {
    return {std::clamp(box.llx, outer.llx, outer.urx), std::clamp(box.lly, outer.lly, outer.ury),
            std::clamp(box.urx, outer.llx, outer.urx), std::clamp(box.ury, outer.lly, outer.ury)};
}

bool isEmpty(const Rectangle& box) {
    return box.urx <= box.llx || box.ury <= box.lly;
}

}  // namespace

PageGeometry PageGeometry::of(QPDFObjectHandle page) {
    PageGeometry geometry;
    geometry.media = rectangle(attribute(page, "/MediaBox")).value_or(letter());
    if (isEmpty(geometry.media)) geometry.media = letter();
    geometry.box = within(rectangle(attribute(page, "/CropBox")).value_or(geometry.media), geometry.media);
    if (isEmpty(geometry.box)) geometry.box = geometry.media;
    if (auto turn = attribute(page, "/Rotate"); turn.isInteger())
        geometry.rotation = static_cast<int>((turn.getIntValue() % 360 + 360) % 360 / 90 * 90);
    if (auto unit = page.getKey("/UserUnit"); unit.isNumber()) {
        const double value = unit.getNumericValue();
        if (std::isfinite(value) && value > 0) geometry.unit = value;
    }
    return geometry;
}

double PageGeometry::shownWidth() const {
    return unit * (rotation % 180 == 0 ? box.urx - box.llx : box.ury - box.lly);
}

double PageGeometry::shownHeight() const {
    return unit * (rotation % 180 == 0 ? box.ury - box.lly : box.urx - box.llx);
}

std::optional<PagePixels> pixelsOf(const PageGeometry& page, double dpi) {
    const double width = std::max(1.0, std::ceil(page.shownWidth() * dpi / pointsPerInch));
    const double height = std::max(1.0, std::ceil(page.shownHeight() * dpi / pointsPerInch));
    if (!(width * height <= mostPagePixels)) return std::nullopt;
    return PagePixels{static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace tamble::pdf
