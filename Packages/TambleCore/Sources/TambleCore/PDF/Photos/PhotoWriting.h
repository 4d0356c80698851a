#pragma once

#include <TambleCore/PDF/Photos/Photo.h>

#include <qpdf/QPDF.hh>

namespace tamble::pdf {

/// Numbers as PDFs write them: plain, and no longer than they need to be.
std::string pdfNumber(double value);

/// Writes the photo with its profile and its alpha, and answers its number.
int writePicture(FileWriter& writer, const Photo& photo);

/// The same as an object of a document, for photos whose data are their own (not in a file).
QPDFObjectHandle pictureObject(QPDF& qpdf, const Photo& photo);

}  // namespace tamble::pdf
