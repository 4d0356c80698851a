#include <Tamble/Desktop/Pictures/DrawnProviders.h>

#include <QPainter>

namespace tamble {

QImage DashesProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const double radius = id.section(QLatin1Char('/'), 0, 0).toDouble();
    const double thickness = id.section(QLatin1Char('/'), 1, 1).toDouble();
    const QColor color(QLatin1Char('#') + id.section(QLatin1Char('/'), 2, 2));
    *size = requestedSize.expandedTo(QSize(1, 1));
    QImage image(*size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(color, thickness);
    // In thicknesses of the line.
    pen.setDashPattern({4, 4});
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    const double inset = thickness / 2;
    painter.drawRoundedRect(QRectF(QPointF(), *size).adjusted(inset, inset, -inset, -inset), radius, radius);
    return image;
}

}  // namespace tamble
