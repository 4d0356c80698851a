#pragma once

#include <TambleCore/Images/ImageFormat.h>
#include <TambleCore/PDF/Pages/PageRenderer.h>
#include <TambleCore/Support/WorkContext.h>

namespace tamble::pdf {

/// Draws all pages of a document and hands each to `take`, from several threads at once and in no order;
/// reports progress. A page takes `bytesPerPixel` of memory meanwhile, by which is decided how many are at
/// work at once. Throws what PageRenderer::pages and `take` throw.
void drawSideBySide(const PageRenderer& renderer, const PageRenderer::Resolution& resolution,
                    double bytesPerPixel, const PageRenderer::Taker& take, const WorkContext& context);

/// What drawing a page and encoding its picture takes; measured.
double bytesPerPixel(ImageFormat format);

}  // namespace tamble::pdf
