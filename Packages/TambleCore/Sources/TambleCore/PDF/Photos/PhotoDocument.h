#pragma once

#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/PDF/Photos/Photo.h>

#include <span>

namespace tamble::pdf {

/// Writes a new PDF with a page for each photo, one photo after the other. Throws PDFError: imageUnreadable,
/// writeFailed; Cancelled.
void writePhotos(std::span<const InputFile> files, const std::filesystem::path& destination,
                 const PDFJobSettings& settings, const WorkContext& context);

}  // namespace tamble::pdf
