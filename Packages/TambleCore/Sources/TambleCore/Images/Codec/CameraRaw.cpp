#include <TambleCore/Images/Codec/CameraRaw.h>
#include <TambleCore/Images/Codec/PictureLimits.h>
#include <TambleCore/Images/Codec/Pixels.h>
#include <TambleCore/Images/ConversionError.h>

#include <libraw/libraw.h>

namespace tamble {
namespace {

int reportOrStop(void* data, LibRaw_progress stage, int, int) {
    const auto& context = *static_cast<const WorkContext*>(data);
    // Stages are successive bits, about twenty up to the end of developing.
    context.report(std::min(0.9, __builtin_ctz(static_cast<unsigned>(stage) | 1U << 20) / 20.0));
    return context.stop.stop_requested() ? 1 : 0;
}

void check(int status, ConversionError::Case which, const WorkContext& context) {
    context.throwIfStopped();
    if (status != LIBRAW_SUCCESS) throw ConversionError(which, LibRaw::strerror(status));
}

struct FreeImage {
    void operator()(libraw_processed_image_t* image) const { LibRaw::dcraw_clear_mem(image); }
};

}  // namespace

DevelopedRaw developed(ByteView file, std::optional<int> maxPixelSize, const WorkContext& context) {
    // Tens of kilobytes of state: too much for a thread's stack.
    const auto raw = std::make_unique<LibRaw>();
    raw->set_progress_handler(reportOrStop, const_cast<WorkContext*>(&context));
    check(raw->open_buffer(const_cast<std::byte*>(file.data()), file.size()),
          ConversionError::Case::unreadable, context);
    const auto& sizes = raw->imgdata.sizes;
    refuseOversized(sizes.raw_width, sizes.raw_height);
    refuseOversized(sizes.iwidth, sizes.iheight);
    auto& parameters = raw->imgdata.params;
    parameters.use_camera_wb = 1;
    parameters.output_color = 1;  // sRGB
    parameters.output_bps = 8;
    parameters.half_size = maxPixelSize && *maxPixelSize <= std::max(sizes.iwidth, sizes.iheight) / 2 ? 1 : 0;
    check(raw->unpack(), ConversionError::Case::cannotDecode, context);
    check(raw->dcraw_process(), ConversionError::Case::cannotDecode, context);
    int status = LIBRAW_SUCCESS;
    const std::unique_ptr<libraw_processed_image_t, FreeImage> image(raw->dcraw_make_mem_image(&status));
    check(status, ConversionError::Case::cannotDecode, context);
    if (!image || image->type != LIBRAW_IMAGE_BITMAP || image->bits != 8 ||
        (image->colors != 3 && image->colors != 1)) {
        throw ConversionError(ConversionError::Case::cannotDecode,
                              "Unexpected picture from the raw developer");
    }
    const int halving = parameters.half_size != 0 ? 2 : 1;
    return {pictureOf({image->data, image->data_size}, image->width, image->height, image->colors),
            {image->width * halving, image->height * halving}};
}

}  // namespace tamble
