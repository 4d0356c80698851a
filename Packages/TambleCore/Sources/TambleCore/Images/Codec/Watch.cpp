#include <TambleCore/Images/Codec/Watch.h>

namespace tamble {

int Watch::generate(VipsRegion* out, void* sequence, void*, void* self, gboolean*) {
    auto& watch = *static_cast<Watch*>(self);
    auto* const input = static_cast<VipsRegion*>(sequence);
    const VipsRect area = out->valid;
    if (watch.context_.stop.stop_requested()) {
        vips_error("tamble", "stopped");
        return -1;
    }
    if (vips_region_prepare(input, &area) != 0) {
        watch.decodingFailed_ = true;
        return -1;
    }
    const auto seen = watch.pixelsSeen_ += std::int64_t{area.width} * area.height;
    const double fraction =
        std::min(1.0, static_cast<double>(seen) / static_cast<double>(watch.pixelsInAll_));
    watch.context_.report(watch.decodingShare_ * fraction);
    return vips_region_region(out, input, &area, area.left, area.top);
}

vips::VImage Watch::over(const vips::VImage& image) {
    pixelsSeen_ = 0;
    pixelsInAll_ = std::max<std::int64_t>(1, std::int64_t{image.width()} * image.height());
    vips::VImage watched(vips_image_new());
    if (vips_image_pipelinev(watched.get_image(), VIPS_DEMAND_STYLE_THINSTRIP, image.get_image(), nullptr) !=
            0 ||
        vips_image_generate(watched.get_image(), vips_start_one, generate, vips_stop_one, image.get_image(),
                            this) != 0) {
        throw vips::VError();
    }
    // The stage reads from the picture as long as it lives.
    g_object_set_data_full(G_OBJECT(watched.get_image()), "tamble-watched", g_object_ref(image.get_image()),
                           g_object_unref);
    return watched;
}

}  // namespace tamble
