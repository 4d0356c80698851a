#include <TambleCore/Images/Codec/ColourTransform.h>

#include <memory>

#include <lcms2.h>

namespace tamble {
namespace {

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

[[noreturn]] void fail() {
    vips_error("colour", "the profile does not fit the picture");
    throw vips::VError();
}

/// How lcms calls pixels of these channels.
cmsUInt32Number pixelFormat(cmsColorSpaceSignature space, bool hasAlpha, std::size_t bytes) {
    const auto kind = static_cast<cmsUInt32Number>(_cmsLCMScolorSpace(space));
    return COLORSPACE_SH(kind) | CHANNELS_SH(cmsChannelsOf(space)) | EXTRA_SH(hasAlpha ? 1U : 0U) |
           BYTES_SH(static_cast<cmsUInt32Number>(bytes));
}

int convertArea(VipsRegion* out, void* sequence, void*, void* transform, gboolean*) {
    auto* const input = static_cast<VipsRegion*>(sequence);
    const VipsRect& area = out->valid;
    if (vips_region_prepare(input, &area) != 0) return -1;
    for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
        cmsDoTransform(transform, VIPS_REGION_ADDR(input, area.left, y), VIPS_REGION_ADDR(out, area.left, y),
                       static_cast<cmsUInt32Number>(area.width));
    }
    return 0;
}

}  // namespace

vips::VImage toSRGB(const vips::VImage& image, ByteView bytes) {
    const Profile profile(cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
    const Profile standard(cmsCreate_sRGBProfile());
    if (!profile || !standard) fail();
    const bool hasAlpha = image.has_alpha();
    const bool isDeep = image.format() == VIPS_FORMAT_USHORT;
    const auto space = cmsGetColorSpace(profile.get());
    // Without a cache inside, so that several threads can use one transform.
    const cmsUInt32Number flags =
        cmsFLAGS_NOCACHE | cmsFLAGS_BLACKPOINTCOMPENSATION | (hasAlpha ? cmsFLAGS_COPY_ALPHA : 0U);
    void* const transform =
        cmsCreateTransform(profile.get(), pixelFormat(space, hasAlpha, isDeep ? 2 : 1), standard.get(),
                           hasAlpha ? TYPE_RGBA_8 : TYPE_RGB_8, INTENT_RELATIVE_COLORIMETRIC, flags);
    if (transform == nullptr) fail();

    vips::VImage converted(vips_image_new());
    VipsImage* const result = converted.get_image();
    // Both live as long as the picture made with them.
    g_object_set_data_full(G_OBJECT(result), "tamble-transform", transform, cmsDeleteTransform);
    g_object_set_data_full(G_OBJECT(result), "tamble-input", g_object_ref(image.get_image()), g_object_unref);
    if (vips_image_pipelinev(result, VIPS_DEMAND_STYLE_THINSTRIP, image.get_image(), nullptr) != 0)
        throw vips::VError();
    result->Bands = hasAlpha ? 4 : 3;
    result->BandFmt = VIPS_FORMAT_UCHAR;
    result->Type = VIPS_INTERPRETATION_sRGB;
    if (vips_image_generate(result, vips_start_one, convertArea, vips_stop_one, image.get_image(),
                            transform) != 0) {
        throw vips::VError();
    }
    vips_image_remove(result, VIPS_META_ICC_NAME);
    return converted;
}

}  // namespace tamble
