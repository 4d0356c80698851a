#include <TambleCore/Images/Codec/VipsLibrary.h>

#include <mutex>

#include <vips/vips.h>

namespace tamble {
namespace {

/// ImageMagick is asked for BMP and for old icons only, after their signature has been seen.
constexpr std::array allowedLoaders{
    "VipsForeignLoadJpeg", "VipsForeignLoadPng",   "VipsForeignLoadWebp",
    "VipsForeignLoadTiff", "VipsForeignLoadNsgif", "VipsForeignLoadHeif",
    "VipsForeignLoadJxl",  "VipsForeignLoadJp2k",  "VipsForeignLoadMagick",
};

void ignoreMessage(const gchar*, GLogLevelFlags, const gchar*, gpointer) {}

}  // namespace

void startVips() {
    static std::once_flag once;
    std::call_once(once, [] {
        // Warnings about odd files belong on nobody's terminal; failures come back as errors.
        g_log_set_handler("VIPS", static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK & ~G_LOG_LEVEL_ERROR),
                          ignoreMessage, nullptr);
        if (vips_init("tamble") != 0) throw std::runtime_error(vips_error_buffer());
        vips_cache_set_max(0);
        // Items run side by side already; more threads in each only add memory.
        vips_concurrency_set(1);
        vips_operation_block_set("VipsForeignLoad", TRUE);
        for (const char* loader : allowedLoaders) vips_operation_block_set(loader, FALSE);
    });
}

}  // namespace tamble
