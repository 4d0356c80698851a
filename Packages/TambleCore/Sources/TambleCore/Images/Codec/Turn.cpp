#include <TambleCore/Images/Codec/Turn.h>

namespace tamble {
namespace {

constexpr Turn quarterClockwise{.transposes = true, .mirrorsX = true};
constexpr Turn quarterCounterClockwise{.transposes = true, .mirrorsY = true};
constexpr Turn half{.mirrorsX = true, .mirrorsY = true};
constexpr Turn mirrorX{.mirrorsX = true};
constexpr Turn mirrorY{.mirrorsY = true};

}  // namespace

Turn Turn::upright(int exifOrientation) {
    switch (exifOrientation) {
        case 2:
            return mirrorX;
        case 3:
            return half;
        case 4:
            return mirrorY;
        case 5:
            return {.transposes = true};
        case 6:
            return quarterClockwise;
        case 7:
            return {.transposes = true, .mirrorsX = true, .mirrorsY = true};
        case 8:
            return quarterCounterClockwise;
        default:
            return {};
    }
}

Turn Turn::rotation(ImageJobSettings::Rotation rotation) {
    using enum ImageJobSettings::Rotation;
    switch (rotation) {
        case right:
            return quarterClockwise;
        case left:
            return quarterCounterClockwise;
        case upsideDown:
            return half;
        case flipHorizontal:
            return mirrorX;
        case flipVertical:
            return mirrorY;
        case none:
            break;
    }
    return {};
}

Turn Turn::then(const Turn& next) const {
    // Mirroring before the sides are exchanged is mirroring the other way after it.
    const bool x = next.transposes ? mirrorsY : mirrorsX;
    const bool y = next.transposes ? mirrorsX : mirrorsY;
    return {.transposes = transposes != next.transposes,
            .mirrorsX = x != next.mirrorsX,
            .mirrorsY = y != next.mirrorsY};
}

}  // namespace tamble
