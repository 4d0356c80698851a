#include <TambleCore/PDF/PDFEngine.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/Support/LoadedModule.h>

namespace tamble {

const PDFEngine& pdfEngine() {
    static const PDFEngine* const engine = [] {
        try {
            return reinterpret_cast<PDFEngineFunction>(moduleSymbol("libTamblePDF.so", pdfEngineSymbol))();
        } catch (const std::runtime_error& error) {
            throw PDFError(PDFError::Case::unreadable, error.what());
        }
    }();
    return *engine;
}

}  // namespace tamble
