#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/PDFEngine.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Pages/ShownPages.h>

#include <filesystem>
#include <stdexcept>

namespace tamble::pdf {
namespace {

/// What the library throws about a document that turned out to be damaged further in.
template <typename Work>
void readable(const Work& work) {
    try {
        work();
    } catch (const std::filesystem::filesystem_error& error) {
        throw PDFError(PDFError::Case::writeFailed, error.what());
    } catch (const std::runtime_error& error) {
        throw PDFError(PDFError::Case::unreadable, error.what());
    } catch (const std::logic_error& error) {
        throw PDFError(PDFError::Case::unreadable, error.what());
    }
}

void perform(PDFTool tool, const SingleWork& work) {
    switch (tool) {
        case PDFTool::split:
            return split(work);
        case PDFTool::organize:
        case PDFTool::deletePages:
        case PDFTool::extractPages:
            return editPages(tool, work);
        case PDFTool::compress:
            return compress(work);
        case PDFTool::sign:
            return sign(work);
        case PDFTool::addPassword:
            return addPassword(work);
        case PDFTool::removePassword:
            return removePassword(work);
        case PDFTool::toImages:
            return toImages(work);
        case PDFTool::merge:
        case PDFTool::fromImages:
            break;
    }
    throw std::logic_error("This tool combines.");
}

class Engine final : public PDFEngine {
  public:
    void process(PDFTool tool, const InputFile& file, const std::filesystem::path& destination,
                 const PDFJobSettings& settings, const WorkContext& context) const override {
        readable([&] { perform(tool, {file, destination, settings, context}); });
    }
    void combine(PDFTool tool, std::span<const InputFile> files, const std::filesystem::path& destination,
                 const PDFJobSettings& settings, const WorkContext& context) const override {
        readable([&] {
            const CombinedWork work{files, destination, settings, context};
            tool == PDFTool::merge ? merge(work) : fromImages(work);
        });
    }
    std::vector<PageSize> pageSizes(const std::filesystem::path& file,
                                    const std::string& password) const override {
        std::vector<PageSize> sizes;
        readable([&] { sizes = shownSizes(Document::open(file, password)); });
        return sizes;
    }
    void drawPages(const PageSpan& span, const PageTaker& take, const WorkContext& context) const override {
        readable([&] { drawShown(span, take, context); });
    }
};

}  // namespace
}  // namespace tamble::pdf

extern "C" [[gnu::visibility("default")]] const tamble::PDFEngine* tamblePDFEngine() {
    static const tamble::pdf::Engine engine;
    return &engine;
}
