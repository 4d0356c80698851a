#pragma once

#include <TambleCore/PDF/PDFEngine.h>
#include <TambleCore/PDF/Structure/Document.h>

/// Pages for a screen; see PDFEngine.
namespace tamble::pdf {

std::vector<PageSize> shownSizes(const Document& document);

/// Throws PDFError, invalidPageRange for pages that the document has not; Cancelled.
void drawShown(const PageSpan& span, const PDFEngine::PageTaker& take, const WorkContext& context);

}  // namespace tamble::pdf
