#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/Support/WorkContext.h>

#include <span>

namespace tamble {

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
};

/// The engine of the PDF module, which is loaded by the first call and stays. Throws PDFError::unreadable
/// when the module cannot be loaded.
const PDFEngine& pdfEngine();

/// The name under which the module exports the function that answers its engine.
inline constexpr const char* pdfEngineSymbol = "tamblePDFEngine";
using PDFEngineFunction = const PDFEngine* (*)();

}  // namespace tamble
