#include <TambleCore/Images/ImageFormat.h>

#include <array>

namespace tamble {
namespace {

struct FormatFacts {
    ImageFormat format;
    std::string_view displayName;
    std::string_view fileExtension;
    std::string_view contentType;
    bool isLossy;
    bool supportsTransparency;
};

constexpr std::array<FormatFacts, 7> formats{{
    {ImageFormat::webp, "WebP", "webp", "org.webmproject.webp", true, true},
    {ImageFormat::jpeg, "JPEG", "jpg", "public.jpeg", true, false},
    {ImageFormat::png, "PNG", "png", "public.png", false, true},
    {ImageFormat::heic, "HEIC", "heic", "public.heic", true, true},
    {ImageFormat::tiff, "TIFF", "tiff", "public.tiff", false, true},
    {ImageFormat::gif, "GIF", "gif", "com.compuserve.gif", false, true},
    {ImageFormat::avif, "AVIF", "avif", "public.avif", true, true},
}};

const FormatFacts& facts(ImageFormat format) {
    return formats[static_cast<std::size_t>(format)];
}

}  // namespace

std::string_view displayName(ImageFormat format) {
    return facts(format).displayName;
}

std::string_view fileExtension(ImageFormat format) {
    return facts(format).fileExtension;
}

std::string_view contentTypeIdentifier(ImageFormat format) {
    return facts(format).contentType;
}

bool isLossy(ImageFormat format) {
    return facts(format).isLossy;
}

bool supportsTransparency(ImageFormat format) {
    return facts(format).supportsTransparency;
}

std::vector<std::string> otherNames(ImageFormat format) {
    switch (format) {
        case ImageFormat::jpeg:
            return {"jpg"};
        case ImageFormat::tiff:
            return {"tif"};
        case ImageFormat::heic:
            return {"heif"};
        default:
            return {};
    }
}

std::optional<ImageFormat> imageFormat(const std::optional<ContentType>& type) {
    if (!type) return std::nullopt;
    for (const auto& candidate : formats) {
        if (type->conformsTo(candidate.contentType)) return candidate.format;
    }
    return std::nullopt;
}

}  // namespace tamble
