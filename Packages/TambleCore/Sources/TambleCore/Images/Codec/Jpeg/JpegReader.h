#pragma once

#include <TambleCore/Images/Codec/Geometry.h>
#include <TambleCore/Images/Metadata/Metadata.h>
#include <TambleCore/Support/WorkContext.h>

namespace tamble {

/// Consecutive rows of one channel.
struct PlaneRows {
    int top = 0;
    int width = 0;
    int height = 0;
    const std::uint8_t* samples = nullptr;
    std::size_t stride = 0;
};

/// Reads a JPEG's channels as they are coded: luma and colour differences apart, each in its own resolution,
/// in the colours of its profile and as it was stored. Unlike the general way it makes no RGB of them.
class JpegReader {
  public:
    /// Reads the header; the bytes must outlive the reader. Throws ConversionError::unreadable.
    JpegReader(ByteView file, const WorkContext& context);
    ~JpegReader();
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;

    PictureSize size() const;
    /// Whether the channels are luma alone, or luma and two colour differences.
    bool hasLuma() const;
    int channels() const;

    /// Divides the sides by 1, 2, 4 or 8 while decoding. To be called once, before what follows.
    void shrink(int divisor);
    const std::vector<PictureSize>& channelSizes() const { return channelSizes_; }

    /// Hands over all rows from top to bottom, one row of blocks of every channel at a time. Throws
    /// ConversionError::cannotDecode at the first sign of damage; Cancelled.
    void read(const std::function<void(std::span<const PlaneRows>)>& take);

  private:
    struct State;
    std::unique_ptr<State> state_;
    const WorkContext& context_;
    std::vector<PictureSize> channelSizes_;
};

}  // namespace tamble
