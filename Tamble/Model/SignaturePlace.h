#pragma once

#include <TambleCore/PDF/PDFJobSettings.h>

/// Where a signature goes on its page. It keeps its shape and stays on the page; sides are shares of the
/// page's.
namespace tamble::SignaturePlace {

/// Where a signature goes first: at the lower right, where people sign. Ratios are widths by heights.
NormalizedRect first(double pictureRatio, double pageRatio);
/// The same size with its upper left corner there, or as near as it fits.
NormalizedRect movedTo(const NormalizedRect& rect, double x, double y);
/// As wide as that, within sense; its upper left corner stays.
NormalizedRect widened(const NormalizedRect& rect, double width);
/// Larger or smaller by the factor around its middle.
NormalizedRect scaled(const NormalizedRect& rect, double factor);

}  // namespace tamble::SignaturePlace
