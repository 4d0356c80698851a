#pragma once

#include <array>
#include <cstdint>

/// Tag numbers of TIFF 6.0, its supplements and EXIF 2.32 that matter here.
namespace tamble::tiff::tag {

inline constexpr std::uint16_t imageWidth = 0x0100;
inline constexpr std::uint16_t imageLength = 0x0101;
inline constexpr std::uint16_t compression = 0x0103;
inline constexpr std::uint16_t stripOffsets = 0x0111;
inline constexpr std::uint16_t orientation = 0x0112;
inline constexpr std::uint16_t stripByteCounts = 0x0117;
inline constexpr std::uint16_t tileOffsets = 0x0144;
inline constexpr std::uint16_t tileByteCounts = 0x0145;
inline constexpr std::uint16_t subDirectories = 0x014A;
inline constexpr std::uint16_t thumbnailOffset = 0x0201;
inline constexpr std::uint16_t thumbnailLength = 0x0202;
inline constexpr std::uint16_t xmp = 0x02BC;
inline constexpr std::uint16_t iptc = 0x83BB;
inline constexpr std::uint16_t photoshop = 0x8649;
inline constexpr std::uint16_t exifDirectory = 0x8769;
inline constexpr std::uint16_t profile = 0x8773;
inline constexpr std::uint16_t gpsDirectory = 0x8825;
inline constexpr std::uint16_t makerNote = 0x927C;
inline constexpr std::uint16_t pixelXDimension = 0xA002;
inline constexpr std::uint16_t pixelYDimension = 0xA003;
inline constexpr std::uint16_t interopDirectory = 0xA005;

/// Tags that tie pixels to places on earth (GeoTIFF).
inline constexpr std::array<std::uint16_t, 6> georeference{0x830E, 0x8482, 0x85D8, 0x87AF, 0x87B0, 0x87B1};

/// Tags that say how the pixels are stored and what they mean; all a picture needs to be shown right.
/// Resolution, orientation and the ICC profile are among them.
inline constexpr std::array<std::uint16_t, 52> pixels{
    0x00FE, 0x00FF, 0x0100, 0x0101, 0x0102, 0x0103, 0x0106, 0x0107, 0x0108, 0x0109, 0x010A, 0x0111, 0x0112,
    0x0115, 0x0116, 0x0117, 0x0118, 0x0119, 0x011A, 0x011B, 0x011C, 0x0122, 0x0123, 0x0124, 0x0125, 0x0128,
    0x012D, 0x013D, 0x013E, 0x013F, 0x0140, 0x0141, 0x0142, 0x0143, 0x0144, 0x0145, 0x014C, 0x014E, 0x0150,
    0x0152, 0x0153, 0x0154, 0x0155, 0x0156, 0x015B, 0x0211, 0x0212, 0x0213, 0x0214, 0x8773, 0xC5F2, 0xC5F3};

}  // namespace tamble::tiff::tag
