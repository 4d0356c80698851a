#include <TambleCore/PDF/Structure/PageBox.h>

#include <algorithm>

#include <qpdf/QPDFPageObjectHelper.hh>

namespace tamble::pdf {
namespace {

using Rectangle = QPDFObjectHandle::Rectangle;

Rectangle normalized(Rectangle box) {
    return {std::min(box.llx, box.urx), std::min(box.lly, box.ury), std::max(box.llx, box.urx),
            std::max(box.lly, box.ury)};
}

bool isEmpty(const Rectangle& box) {
    return !(box.urx > box.llx && box.ury > box.lly);
}

}  // namespace

PageBox PageBox::of(QPDFObjectHandle page) {
    QPDFPageObjectHelper helper(page);
    auto medium = helper.getMediaBox();
    Rectangle shown = medium.isRectangle() ? normalized(medium.getArrayAsRectangle()) : Rectangle{};
    if (isEmpty(shown)) shown = {0, 0, 612, 792};
    if (auto crop = helper.getCropBox(); crop.isRectangle()) {
        const auto cropped = normalized(crop.getArrayAsRectangle());
        const Rectangle common{std::max(shown.llx, cropped.llx), std::max(shown.lly, cropped.lly),
                               std::min(shown.urx, cropped.urx), std::min(shown.ury, cropped.ury)};
        if (!isEmpty(common)) shown = common;
    }
    auto turned = helper.getAttribute("/Rotate", false);
    const auto turn = turned.isInteger() ? static_cast<int>(turned.getIntValue() % 360) : 0;
    return {.left = shown.llx,
            .bottom = shown.lly,
            .width = shown.urx - shown.llx,
            .height = shown.ury - shown.lly,
            .turn = turn % 90 == 0 ? (turn + 360) % 360 : 0};
}

std::array<double, 6> PageBox::matrixFor(const NormalizedRect& place, double aspect) const {
    // On the page as shown, from its lower left corner.
    double w = place.width * shownWidth();
    double h = place.height * shownHeight();
    double x = place.x * shownWidth();
    double y = (1 - place.y - place.height) * shownHeight();
    if (w > h * aspect) {
        x += (w - h * aspect) / 2;
        w = h * aspect;
    } else {
        y += (h - w / aspect) / 2;
        h = w / aspect;
    }
    switch (turn) {
        case 90:
            return {0, w, -h, 0, left + width - y, bottom + x};
        case 180:
            return {-w, 0, 0, -h, left + width - x, bottom + height - y};
        case 270:
            return {0, -w, h, 0, left + y, bottom + height - x};
        default:
            return {w, 0, 0, h, left + x, bottom + y};
    }
}

}  // namespace tamble::pdf
