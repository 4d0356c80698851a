#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/Support/WorkContext.h>

#include <span>

/// The work of each tool: reads the inputs, writes `destination`, which does not exist yet. All throw
/// PDFError, and Cancelled after a stop request.
namespace tamble::pdf {

/// One PDF to work on.
struct SingleWork {
    const InputFile& file;
    const std::filesystem::path& destination;
    const PDFJobSettings& settings;
    const WorkContext& context;
};

void split(const SingleWork& work);
/// The new pages of `organize`, `deletePages` and `extractPages`.
void editPages(PDFTool tool, const SingleWork& work);
void compress(const SingleWork& work);
void sign(const SingleWork& work);
void addPassword(const SingleWork& work);
void removePassword(const SingleWork& work);
void toImages(const SingleWork& work);
/// Every page becomes a picture, in place: what PDFCompression::smallest means.
void makePagesPictures(const SingleWork& work);

/// Many files that become one.
struct CombinedWork {
    std::span<const InputFile> files;
    const std::filesystem::path& destination;
    const PDFJobSettings& settings;
    const WorkContext& context;
};

void merge(const CombinedWork& work);
void fromImages(const CombinedWork& work);

}  // namespace tamble::pdf
