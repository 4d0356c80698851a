#pragma once

#include <Tamble/Model/InkPen.h>

#include <TambleCore/Previews/PreviewPicture.h>

#include <QColor>
#include <QImage>
#include <QPainter>

namespace tamble {

/// Draws the strokes on an area of that width.
void drawInk(QPainter& painter, std::span<const InkStroke> strokes, const QColor& color, double width);

/// The strokes on nothing, cut to what they cover; empty without any.
QImage inkPicture(std::span<const InkStroke> strokes, const QColor& color);

/// The bytes of a PNG file.
std::vector<std::byte> pngOf(const QImage& picture);
/// What an Image takes as its source.
QString sourceOf(std::span<const std::byte> png);
/// Width by height; nothing for what is no picture.
std::optional<double> ratioOf(std::span<const std::byte> png);

}  // namespace tamble
