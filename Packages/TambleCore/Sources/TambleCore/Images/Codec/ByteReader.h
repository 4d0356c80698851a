#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

#include <string_view>

namespace tamble {

/// The bytes at an offset as characters; fewer, or none, where the file ends before.
std::string_view textAt(ByteView file, std::size_t offset, std::size_t length);

/// Numbers at a byte offset; empty where the file ends before.
std::optional<std::uint32_t> bigEndian32(ByteView file, std::size_t offset);
std::optional<std::uint32_t> littleEndian32(ByteView file, std::size_t offset);
std::optional<std::uint16_t> littleEndian16(ByteView file, std::size_t offset);

}  // namespace tamble
