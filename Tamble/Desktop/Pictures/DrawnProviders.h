#pragma once

#include <QQuickImageProvider>

namespace tamble {

/// The window's symbols in any colour: "image://symbol/NAME/RRGGBB".
class SymbolProvider final : public QQuickImageProvider {
  public:
    SymbolProvider() : QQuickImageProvider(Image) {}
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

/// The soft shadow of a rounded rectangle, to be stretched between its corners:
/// "image://shadow/RADIUS/BLUR/RRGGBBAA/SCALE", lengths in pixels before scaling.
class ShadowProvider final : public QQuickImageProvider {
  public:
    ShadowProvider() : QQuickImageProvider(Image) {}
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

/// A dashed rounded rectangle of the size asked for: "image://dashes/RADIUS/THICKNESS/RRGGBB" in pixels.
class DashesProvider final : public QQuickImageProvider {
  public:
    DashesProvider() : QQuickImageProvider(Image) {}
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace tamble
