#include <Tamble/Desktop/Pictures/InkPicture.h>

#include <QBuffer>
#include <QImageReader>
#include <cmath>

namespace tamble {
namespace {

/// Of the drawing area: a signature as wide as it can be is sharp in print.
constexpr double areaPixels = 1400;

QByteArray bytesOf(std::span<const std::byte> png) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(png.data()),
                                   static_cast<qsizetype>(png.size()));
}

}  // namespace

void drawInk(QPainter& painter, std::span<const InkStroke> strokes, const QColor& color, double width) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const InkStroke& stroke : strokes) {
        const InkStroke line = smoothed(stroke);
        for (std::size_t i = 0; i < line.size(); ++i) {
            const InkPoint& from = line[i == 0 ? 0 : i - 1];
            const InkPoint& to = line[i];
            painter.setPen(QPen(color, to.width * width, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(from.x, from.y) * width, QPointF(to.x, to.y) * width);
        }
    }
}

QImage inkPicture(std::span<const InkStroke> strokes, const QColor& color) {
    const auto bounds = boundsOf(strokes);
    if (!bounds) return {};
    const QRect shown = QRectF(QPointF(bounds->left, bounds->top) * areaPixels,
                               QPointF(bounds->right, bounds->bottom) * areaPixels)
                            .toAlignedRect()
                            .adjusted(-2, -2, 2, 2);
    QImage picture(shown.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.translate(-shown.topLeft());
    drawInk(painter, strokes, color, areaPixels);
    return picture;
}

std::vector<std::byte> pngOf(const QImage& picture) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    const auto bytes =
        std::as_bytes(std::span(buffer.data().constData(), static_cast<std::size_t>(buffer.size())));
    return {bytes.begin(), bytes.end()};
}

QString sourceOf(std::span<const std::byte> png) {
    return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(bytesOf(png).toBase64());
}

std::optional<double> ratioOf(std::span<const std::byte> png) {
    QByteArray bytes = bytesOf(png);
    QBuffer buffer(&bytes);
    const QSize size = QImageReader(&buffer, "PNG").size();
    if (size.isEmpty()) return std::nullopt;
    return static_cast<double>(size.width()) / size.height();
}

}  // namespace tamble
