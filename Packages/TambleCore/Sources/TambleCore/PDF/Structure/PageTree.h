#pragma once

#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/PDF/Structure/Document.h>

#include <span>

namespace tamble::pdf {

/// Makes the document consist of these pages in this order, turned as the edits say. A page that is listed
/// again becomes one of its own, with form fields of its own. Pages that are not listed are gone, with
/// everything that was only theirs: bookmarks, links and named places that led there, form fields, tags.
/// Throws PDFError: noPages, invalidPageRange.
void setPages(const Document& document, std::span<const PageEdit> edits);

}  // namespace tamble::pdf
