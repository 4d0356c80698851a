#pragma once

#include <TambleCore/Platform/ContentType.h>

#include <optional>
#include <span>
#include <string_view>

/// Which types of pictures and documents the tools read.
namespace tamble::FileTypes {

/// The identifiers of all picture types that the picture library reads here.
std::span<const std::string_view> readableImageTypes();
/// The type is present, an image, not SVG, and one of the readable image types.
bool isReadableImage(const std::optional<ContentType>& type);
bool isRawImage(const std::optional<ContentType>& type);
bool isPDF(const std::optional<ContentType>& type);
/// Text, word-processor documents and web pages, as text extraction opens them.
bool isDocument(const std::optional<ContentType>& type);
bool isSubtitle(const std::optional<ContentType>& type);
std::optional<ContentType> contentType(const std::filesystem::path& file);

}  // namespace tamble::FileTypes
