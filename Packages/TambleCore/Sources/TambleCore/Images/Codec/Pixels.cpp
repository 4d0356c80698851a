#include <TambleCore/Images/Codec/Pixels.h>

namespace tamble {

vips::VImage pictureOf(std::span<const std::uint8_t> samples, int width, int height, int bands) {
    VipsImage* const image = vips_image_new_from_memory_copy(samples.data(), samples.size(), width, height,
                                                             bands, VIPS_FORMAT_UCHAR);
    if (image == nullptr) throw vips::VError();
    image->Type = bands < 3 ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB;
    return vips::VImage(image);
}

}  // namespace tamble
