#include <TambleCore/Images/Codec/PictureLimits.h>
#include <TambleCore/Images/ConversionError.h>

namespace tamble {

void refuseOversized(std::int64_t width, std::int64_t height) {
    // Divided, since the claimed sides may be too large to be multiplied.
    if (width > 0 && height > 0 && width <= mostPixels / height) return;
    throw ConversionError(ConversionError::Case::cannotDecode, fmt::format("{} × {} pixels", width, height));
}

}  // namespace tamble
