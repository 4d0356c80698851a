#include <TambleCore/Images/Codec/RowSink.h>

#include <exception>

namespace tamble {
namespace {

struct Sink {
    const RowTaker& take;
    std::exception_ptr thrown;
};

int takeArea(VipsRegion* region, VipsRect* area, void* data) {
    auto& sink = *static_cast<Sink*>(data);
    try {
        sink.take(area->top, area->height, VIPS_REGION_ADDR(region, 0, area->top),
                  static_cast<std::size_t>(VIPS_REGION_LSKIP(region)));
        return 0;
    } catch (...) {
        sink.thrown = std::current_exception();
        return -1;
    }
}

}  // namespace

void forEachRow(const vips::VImage& image, const RowTaker& take) {
    Sink sink{take, nullptr};
    const bool done = vips_sink_disc(image.get_image(), takeArea, &sink) == 0;
    if (sink.thrown) std::rethrow_exception(sink.thrown);
    if (!done) throw vips::VError();
}

}  // namespace tamble
