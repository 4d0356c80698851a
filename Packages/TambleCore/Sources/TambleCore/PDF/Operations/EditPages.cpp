#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/PageList.h>
#include <TambleCore/PDF/Structure/PageTree.h>

namespace tamble::pdf {
namespace {

/// The editor's list, or what was typed.
std::vector<PageEdit> wantedPages(PDFTool tool, const PDFJobSettings& settings, int pageCount) {
    if (settings.pages) return *settings.pages;
    if (!settings.pageList) throw PDFError(PDFError::Case::pagesMissing);
    if (tool == PDFTool::deletePages) return pagesWithout(*settings.pageList, pageCount);
    return pageOrder(*settings.pageList, pageCount);
}

}  // namespace

void editPages(PDFTool tool, const SingleWork& work) {
    const Document document = Document::open(work.file.url, work.settings.password);
    if (isSealed(document)) work.context.leave(ItemNote::sealBroken);
    setPages(document, wantedPages(tool, work.settings, document.pageCount()));
    constexpr double half = 0.5;
    work.context.report(half);
    save(document, work.destination, work.context, half);
}

}  // namespace tamble::pdf
