#pragma once

#include <TambleCore/Platform/ContentType.h>

#include <optional>

/// Which types of sound and video the tools read.
namespace tamble::MediaTypes {

bool isVideo(const std::optional<ContentType>& type);
bool isAudio(const std::optional<ContentType>& type);
/// Whether the file can be read only by the media helper: always so where the system has no media services of
/// its own.
bool needsFFmpegToRead(const std::optional<ContentType>& type);

}  // namespace tamble::MediaTypes
