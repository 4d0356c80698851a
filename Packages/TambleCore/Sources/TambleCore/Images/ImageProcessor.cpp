#include <TambleCore/Images/ImageProcessor.h>
#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Jobs/RequireSmaller.h>

namespace tamble {
namespace {

ImageFormat writableStandIn(const std::optional<ContentType>& type) {
    const bool isPhotograph =
        FileTypes::isRawImage(type) ||
        (type && (type->conformsTo("public.jpeg-xl") || type->conformsTo("public.jpeg-2000")));
    return isPhotograph ? ImageFormat::jpeg : ImageFormat::png;
}

}  // namespace

ImageFormat targetFormat(const std::optional<ContentType>& type, const ImageJobSettings& settings) {
    const auto* convert = std::get_if<image_output::Convert>(&settings.output);
    const ImageFormat format = convert ? convert->value : imageFormat(type).value_or(writableStandIn(type));
    return settings.removeBackground && !supportsTransparency(format) ? ImageFormat::png : format;
}

ImageProcessor::ImageProcessor(ImageJobSettings settings, ImageConverter converter)
    : settings_(std::move(settings)), converter_(converter) {}

ImageFormat ImageProcessor::targetFormat(const InputFile& file) const {
    return tamble::targetFormat(file.contentType, settings_);
}

std::string ImageProcessor::fileExtension() const {
    return std::string(tamble::fileExtension(tamble::targetFormat(std::nullopt, settings_)));
}

std::string ImageProcessor::outputName(const InputFile& file) const {
    const ImageFormat target = targetFormat(file);
    if (target == imageFormat(file.contentType)) return file.url.filename().native();
    return file.url.stem().native() + "." + std::string(tamble::fileExtension(target));
}

std::optional<SkipReason> ImageProcessor::skipReason(const InputFile& file) const {
    const auto* convert = std::get_if<image_output::Convert>(&settings_.output);
    if (!settings_.skipIfAlreadyInFormat || !convert || changesMoreThanFormat(settings_)) return std::nullopt;
    if (imageFormat(file.contentType) != convert->value) return std::nullopt;
    return skip::AlreadyInFormat{std::string(displayName(convert->value))};
}

void ImageProcessor::process(const InputFile& file, const std::filesystem::path& destination,
                             const WorkContext& context) const {
    context.throwIfStopped();
    converter_.convert(file.url, destination, settings_, targetFormat(file), context);
    if (settings_.skipIfNotSmaller) requireSmaller(file, destination);
}

bool ImageProcessor::keepsModificationTime() const {
    // A cut-out is a new picture, and "everything hidden" covers when the photo was taken.
    return !settings_.removeBackground && !settings_.removeAllMetadata;
}

}  // namespace tamble
