#pragma once

#include <TambleCore/Images/Raster.h>
#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/Support/WorkContext.h>

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace tamble {

/// How large a page is shown, in points (1/72 inch).
struct PageSize {
    double width = 0;
    double height = 0;
};

/// Some pages of a file, to be drawn for a screen.
struct PageSpan {
    std::filesystem::path file;
    /// Opens the file if it is locked.
    std::string password;
    /// Counted from 0.
    int first = 0;
    int count = 1;
    /// Of the longest side.
    int pixelSize = 0;
};

/// What the PDF module offers the rest of the program: the seam behind which its libraries are loaded. Throws
/// PDFError; ProcessorSkip; Cancelled after a stop request.
class PDFEngine {
  public:
    virtual ~PDFEngine() = default;
    /// Does the work of a tool that takes one PDF; writes `destination`, a file, or a folder for `split` and
    /// `toImages`.
    virtual void process(PDFTool tool, const InputFile& file, const std::filesystem::path& destination,
                         const PDFJobSettings& settings, const WorkContext& context) const = 0;
    /// Does the work of `merge` and `fromImages`.
    virtual void combine(PDFTool tool, std::span<const InputFile> files,
                         const std::filesystem::path& destination, const PDFJobSettings& settings,
                         const WorkContext& context) const = 0;

    /// The sizes of all pages, in their order.
    virtual std::vector<PageSize> pageSizes(const std::filesystem::path& file,
                                            const std::string& password) const = 0;
    using PageTaker = std::function<void(int page, Raster picture)>;
    /// Draws the pages one after the other, in colour.
    virtual void drawPages(const PageSpan& span, const PageTaker& take, const WorkContext& context) const = 0;
};

/// The engine of the PDF module, which is loaded by the first call and stays. Throws PDFError::unreadable
/// when the module cannot be loaded.
const PDFEngine& pdfEngine();

/// The name under which the module exports the function that answers its engine.
inline constexpr const char* pdfEngineSymbol = "tamblePDFEngine";
using PDFEngineFunction = const PDFEngine* (*)();

}  // namespace tamble
