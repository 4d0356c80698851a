#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

namespace tamble::jpeg {

enum class Kind {
    jfif,
    exif,
    xmp,
    extendedXmp,
    icc,
    photoshop,
    adobe,
    comment,
    /// Tables, frame headers and scans: what the picture is coded in.
    coding,
    /// Application data of any other kind.
    other,
};

struct Segment {
    Kind kind;
    std::uint8_t marker;
    /// With marker and length; a scan's coded data belongs to it.
    ByteView whole;
    /// Without marker, length, signature (as "Exif\0\0") and coded data.
    ByteView payload;
};

struct Layout {
    std::vector<Segment> segments;
    /// Where the picture ends; 0 when only its beginning was read.
    std::size_t end = 0;
};

enum class Extent { untilFirstScan, wholePicture };

/// The segments between start and end of the (first) picture; empty when the structure is broken or cut off.
std::optional<Layout> layout(ByteView file, Extent extent = Extent::wholePicture);

/// The signature that begins a segment of the kind; empty for kinds without one.
std::string_view signature(Kind kind);
std::uint8_t marker(Kind kind);
/// The most bytes that one segment of the kind holds after its signature.
std::size_t capacity(Kind kind);

void appendStart(Bytes& file);
/// `payload` must not be bigger than the kind's capacity.
void appendSegment(Bytes& file, Kind kind, ByteView payload);
/// As many segments as `data` needs, each beginning with the signature.
void appendSplit(Bytes& file, Kind kind, ByteView data);
/// An ICC profile over as many segments as it needs; nothing when it is too long for 255 of them.
void appendProfile(Bytes& file, ByteView profile);

/// What the segments of one kind hold together, in order.
Bytes joined(const std::vector<Segment>& segments, Kind kind);
/// The ICC profile, put together from its numbered parts; empty when there is none or parts are missing.
std::optional<Bytes> profile(const std::vector<Segment>& segments);

}  // namespace tamble::jpeg
