#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Exif/Thumbnail.h>

namespace tamble {

bool carriesMetadata(ByteView thumbnail) {
    const auto layout = jpeg::layout(thumbnail);
    if (!layout) return true;
    const bool onlyPadding =
        std::ranges::all_of(thumbnail.subspan(layout->end), [](std::byte b) { return b == std::byte{0}; });
    return !onlyPadding || std::ranges::any_of(layout->segments, [](const jpeg::Segment& segment) {
        return segment.kind != jpeg::Kind::coding && segment.kind != jpeg::Kind::jfif &&
               segment.kind != jpeg::Kind::adobe && segment.kind != jpeg::Kind::icc;
    });
}

}  // namespace tamble
