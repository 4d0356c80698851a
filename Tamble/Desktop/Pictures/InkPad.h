#pragma once

#include <Tamble/Desktop/Models/InkModel.h>

#include <QQuickPaintedItem>

namespace tamble {

/// Shows the strokes as they are drawn.
class InkPad : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tamble::InkModel* ink READ ink WRITE setInk NOTIFY inkChanged)

  public:
    explicit InkPad(QQuickItem* parent = nullptr);

    InkModel* ink() const { return ink_; }
    void setInk(InkModel* ink);
    void paint(QPainter* painter) override;

  signals:
    void inkChanged();

  private:
    InkModel* ink_ = nullptr;
};

}  // namespace tamble
