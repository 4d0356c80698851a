#include <TambleCore/Images/ImageConverter.h>
#include <TambleCore/Images/ImageProcessor.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Photos/Photo.h>

namespace tamble::pdf {
namespace {

/// The coding that loses nothing that the photo's own has not lost already.
ImageFormat codingFor(const InputFile& file) {
    const auto format = imageFormat(file.contentType);
    if (!format) return targetFormat(file.contentType, {});
    return *format == ImageFormat::heic || *format == ImageFormat::avif ? ImageFormat::jpeg
                                                                        : ImageFormat::png;
}

std::optional<Photo> asItIs(const std::filesystem::path& file) {
    const auto mapped = std::make_shared<MappedFile>(file);
    if (auto photo = jpegPhoto(mapped)) return photo;
    return pngPhoto(mapped);
}

Photo converted(const InputFile& file, const std::filesystem::path& scratch, const WorkContext& context) {
    ImageJobSettings settings;
    settings.quality = ImageJobSettings::Quality::best;
    ImageConverter().convert(file.url, scratch, settings, codingFor(file), {.stop = context.stop});
    auto photo = asItIs(scratch);
    std::filesystem::remove(scratch);
    if (!photo) throw PDFError(PDFError::Case::imageUnreadable, "The converted photo can't be read.");
    return *std::move(photo);
}

/// In pixels per inch; a poster has more.
constexpr double leastResolution = 30;

}  // namespace

void Photo::setResolution(double x, double y) {
    if (x < leastResolution || y < leastResolution) return;
    resolutionX = x;
    resolutionY = y;
}

Photo readPhoto(const InputFile& file, const std::filesystem::path& scratch, const WorkContext& context) {
    try {
        auto photo = asItIs(file.url);
        return photo ? *std::move(photo) : converted(file, scratch, context);
    } catch (const ConversionError& error) {
        throw PDFError(PDFError::Case::imageUnreadable, error.sentence() + " " + error.detail());
    } catch (const std::filesystem::filesystem_error& error) {
        throw PDFError(PDFError::Case::imageUnreadable, error.what());
    }
}

}  // namespace tamble::pdf
