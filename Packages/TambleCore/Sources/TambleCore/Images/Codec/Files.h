#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

#include <filesystem>

namespace tamble {

/// The whole content of a regular file. Throws ConversionError::unreadable.
Bytes readWhole(const std::filesystem::path& path);

/// Writes a file that must not exist yet; nothing is left of it on failure. Throws
/// ConversionError::encodeFailed.
void writeNew(const std::filesystem::path& path, ByteView content);

}  // namespace tamble
