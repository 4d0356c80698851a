#include <TambleCore/Intake/FileTypes.h>

#include <algorithm>
#include <array>

namespace tamble::FileTypes {
namespace {

constexpr auto readableImages = std::to_array<std::string_view>({
    "public.jpeg",
    "public.png",
    "com.compuserve.gif",
    "public.tiff",
    "org.webmproject.webp",
    "public.heif-standard",
    "public.jpeg-xl",
    "public.jpeg-2000",
    "com.microsoft.bmp",
    "com.microsoft.ico",
    "com.apple.icns",
    "public.camera-raw-image",
});

constexpr auto documents = std::to_array<std::string_view>({
    "public.plain-text",
    "public.html",
    "public.rtf",
    "com.microsoft.word.doc",
    "org.openxmlformats.wordprocessingml.document",
    "org.oasis-open.opendocument.text",
});

bool conformsToOneOf(const ContentType& type, std::span<const std::string_view> identifiers) {
    return std::ranges::any_of(identifiers, [&](std::string_view each) { return type.conformsTo(each); });
}

}  // namespace

std::span<const std::string_view> readableImageTypes() {
    return readableImages;
}

bool isReadableImage(const std::optional<ContentType>& type) {
    return type && type->conformsTo("public.image") && !type->conformsTo("public.svg-image") &&
           conformsToOneOf(*type, readableImages);
}

bool isRawImage(const std::optional<ContentType>& type) {
    return type && type->conformsTo("public.camera-raw-image");
}

bool isPDF(const std::optional<ContentType>& type) {
    return type && type->conformsTo("com.adobe.pdf");
}

bool isDocument(const std::optional<ContentType>& type) {
    return type && conformsToOneOf(*type, documents);
}

bool isSubtitle(const std::optional<ContentType>& type) {
    return type && type->conformsTo("public.subtitles");
}

std::optional<ContentType> contentType(const std::filesystem::path& file) {
    return ContentType::of(file);
}

}  // namespace tamble::FileTypes
