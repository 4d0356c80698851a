#pragma once

#include <TambleCore/PDF/Structure/Document.h>
#include <TambleCore/PDF/Structure/ObjectSet.h>

namespace tamble::pdf {

/// Removes what is left of pages that are no longer in the page tree: bookmarks, links and named places that
/// led there, their form fields and tags. Whatever else refers to them finds nothing.
void dropPages(const Document& document, const std::vector<QPDFObjectHandle>& pages);

/// Removes the form fields whose only widgets are among these annotations.
void dropFields(const Document& document, const ObjectSet& widgets);

/// Removes the tags of content on these pages.
void dropTags(const Document& document, const ObjectSet& pages);

}  // namespace tamble::pdf
