#include <TambleCore/Images/ImageConverter.h>
#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/PDFNames.h>
#include <TambleCore/PDF/Pages/PagesSideBySide.h>

#include <limits>

namespace tamble::pdf {
namespace {

/// Text on a white page shows the traces of stronger compression.
constexpr auto pageQuality = ImageJobSettings::Quality::best;

/// The most pixels a side of a picture can have in the format.
int longestSide(ImageFormat format) {
    switch (format) {
        case ImageFormat::webp:
            return 16'383;
        // Level 6.2 of HEVC, rounded to whole blocks.
        case ImageFormat::heic:
            return 16'384;
        case ImageFormat::jpeg:
        case ImageFormat::gif:
            return 65'535;
        case ImageFormat::avif:
            return 65'536;
        case ImageFormat::png:
        case ImageFormat::tiff:
            break;
    }
    return std::numeric_limits<int>::max();
}

void requireFitting(const PageRenderer& renderer, const PDFJobSettings& settings) {
    const int longest = longestSide(settings.imageFormat);
    for (int page = 0; page < renderer.pageCount(); ++page) {
        const auto size = pixelsOf(renderer.geometry(page), settings.imageDPI);
        if (!size || size->width > longest || size->height > longest)
            throw PDFError(PDFError::Case::pageTooLarge, fmt::format("Page {}", page + 1));
    }
}

}  // namespace

void toImages(const SingleWork& work) {
    const PDFJobSettings& settings = work.settings;
    const Document document = Document::open(work.file.url, settings.password);
    const PageRenderer renderer(document, work.file.url);
    requireFitting(renderer, settings);
    std::error_code error;
    if (!std::filesystem::create_directory(work.destination, error))
        throw PDFError(PDFError::Case::writeFailed, error.message());
    const std::string stem = std::filesystem::path(work.file.url).stem().native();
    const ImageConverter::Drawn how{.format = settings.imageFormat,
                                    .factor = compressionFactor(pageQuality),
                                    .dotsPerInch = static_cast<double>(settings.imageDPI)};
    // Progress is counted in pages.
    const WorkContext encoding{.progress = {}, .stop = work.context.stop};
    drawSideBySide(
        renderer, [&](int) { return how.dotsPerInch; }, bytesPerPixel(settings.imageFormat),
        [&](int page, Raster picture) {
            dropUnusedColour(picture);
            ImageConverter().encode(
                picture, how,
                work.destination / pagePictureName(stem, page, renderer.pageCount(), settings.imageFormat),
                encoding);
        },
        work.context);
}

}  // namespace tamble::pdf
