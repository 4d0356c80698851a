#pragma once

#include <TambleCore/PDF/Pages/PageRenderer.h>
#include <TambleCore/Support/WorkContext.h>

namespace tamble::pdf {

/// Draws all pages of a document and hands each to `take`, from several threads at once and in no order;
/// reports progress. Throws what PageRenderer::pages and `take` throw.
void drawSideBySide(const PageRenderer& renderer, const PageRenderer::Resolution& resolution,
                    const PageRenderer::Taker& take, const WorkContext& context);

}  // namespace tamble::pdf
