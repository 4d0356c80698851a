#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <atomic>

#include <vips/vips8>

namespace tamble {

/// Looks at the rows of a picture as they are decoded: reports progress, ends the work after a stop request,
/// and remembers whether it was decoding that failed. It must outlive the pictures made of it.
class Watch {
  public:
    /// Decoding makes up `decodingShare` (0…1) of the work.
    Watch(const WorkContext& context, double decodingShare)
        : context_(context), decodingShare_(decodingShare) {}
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// The same picture, watched.
    vips::VImage over(const vips::VImage& image);

    bool sawDecodingFail() const noexcept { return decodingFailed_; }
    const WorkContext& context() const noexcept { return context_; }
    double decodingShare() const noexcept { return decodingShare_; }

  private:
    static int generate(VipsRegion* out, void* sequence, void* image, void* self, gboolean* stop);

    const WorkContext& context_;
    const double decodingShare_;
    std::atomic<bool> decodingFailed_ = false;
    std::atomic<std::int64_t> pixelsSeen_ = 0;
    std::int64_t pixelsInAll_ = 1;
};

}  // namespace tamble
