#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Pages/PageRenderer.h>
#include <TambleCore/PDF/Pages/ShownPages.h>

#include <algorithm>
#include <cmath>

namespace tamble::pdf {
namespace {

/// The resolution that gives the longest side that many pixels, and never one more: the drawing program takes
/// four decimals and rounds sides up.
double resolutionFor(const PageGeometry& page, int pixelSize) {
    constexpr double finest = 1e-4;
    const double longest = std::max(page.shownWidth(), page.shownHeight()) / 72;
    const double exact = pixelSize / longest;
    return std::max(finest, std::floor(exact * page.unit / finest) * finest - finest) / page.unit;
}

}  // namespace

std::vector<PageSize> shownSizes(const Document& document) {
    std::vector<PageSize> sizes;
    for (const auto& page : document.pages()) {
        const auto geometry = PageGeometry::of(page);
        sizes.push_back({geometry.shownWidth(), geometry.shownHeight()});
    }
    return sizes;
}

void drawShown(const PageSpan& span, const PDFEngine::PageTaker& take, const WorkContext& context) {
    const Document document = Document::open(span.file, span.password);
    const PageRenderer renderer(document, span.file);
    if (span.first < 0 || span.count < 1 || span.first > renderer.pageCount() - span.count)
        throw PDFError(PDFError::Case::invalidPageRange);
    int drawn = 0;
    renderer.pages(
        span.first, span.first + span.count,
        [&](int page) { return resolutionFor(renderer.geometry(page), span.pixelSize); },
        [&](int page, Raster picture) {
            take(page, std::move(picture));
            context.report(static_cast<double>(++drawn) / span.count);
        },
        context.stop);
}

}  // namespace tamble::pdf
