#pragma once

#include <TambleCore/PDF/Structure/Document.h>

namespace tamble::pdf {

/// Codes the pictures of a document anew for screens, each judged by the size in which it is drawn, and all
/// else without loss. `context` gets progress from 0 to `until`. What is new is kept in a nameless file in
/// `folder`. Throws PDFError::writeFailed; Cancelled.
void makeSmaller(const Document& document, const std::filesystem::path& folder, const WorkContext& context,
                 double until);

}  // namespace tamble::pdf
