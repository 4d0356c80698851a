#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/PDF/PDFJobSettings.h>

#include <span>

namespace tamble {

/// The file name of the one output of `merge` and `fromImages`.
std::string combinedName(PDFTool tool, const PDFJobSettings& settings, std::span<const InputFile> files);

/// The file name of a split's piece, which sorts among `pieceCount` pieces in their order and says which
/// pages it holds (indexes counted from 0): "report 003, pages 7-9.pdf". The stem is cut so that the name
/// fits.
std::string pieceName(const std::string& stem, std::size_t piece, std::size_t pieceCount,
                      std::span<const int> pages);

/// The file name of the picture of a page (its index counted from 0), which sorts among `pageCount` pages:
/// "report 007.jpg".
std::string pagePictureName(const std::string& stem, int page, int pageCount, ImageFormat format);

}  // namespace tamble
