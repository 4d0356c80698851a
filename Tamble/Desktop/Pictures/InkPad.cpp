#include <Tamble/Desktop/Pictures/InkPad.h>
#include <Tamble/Desktop/Pictures/InkPicture.h>

namespace tamble {

InkPad::InkPad(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void InkPad::setInk(InkModel* ink) {
    if (ink == ink_) return;
    if (ink_ != nullptr) disconnect(ink_, nullptr, this, nullptr);
    ink_ = ink;
    if (ink_ != nullptr) connect(ink_, &InkModel::changed, this, [this] { update(); });
    emit inkChanged();
    update();
}

void InkPad::paint(QPainter* painter) {
    if (ink_ != nullptr) drawInk(*painter, ink_->strokes(), ink_->color(), width());
}

}  // namespace tamble
