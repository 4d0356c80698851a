#pragma once

#include <string>

#include <qpdf/QPDFWriter.hh>

namespace tamble::pdf {

/// Has the new file take this password to open, by the strongest there is: AES-256 (ISO 32000-2, revision 6).
/// Whoever opens it may do everything.
void encrypt(QPDFWriter& writer, const std::string& password);

}  // namespace tamble::pdf
