#include <Tamble/Desktop/Pictures/DrawnProviders.h>

#include <QFile>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>

namespace tamble {

QImage SymbolProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const QString name = id.section(QLatin1Char('/'), 0, 0);
    const QString color = id.section(QLatin1Char('/'), 1, 1);
    const QSize wanted = requestedSize.isValid() && !requestedSize.isEmpty() ? requestedSize : QSize(24, 24);
    QImage image(wanted, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QFile file(QStringLiteral(":/qt/qml/Tamble/Symbols/%1.svg").arg(name));
    if (file.open(QIODevice::ReadOnly)) {
        QSvgRenderer renderer(file.readAll().replace("currentColor", "#" + color.toLatin1()));
        QPainter painter(&image);
        renderer.render(&painter);
    }
    *size = wanted;
    return image;
}

}  // namespace tamble
