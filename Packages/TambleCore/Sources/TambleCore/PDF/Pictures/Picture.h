#pragma once

#include <TambleCore/PDF/Pictures/SampleRows.h>

#include <stop_token>

#include <qpdf/Buffer.hh>

namespace tamble::pdf {

/// A picture of a PDF with all that is needed to code it anew, apart from the document it is in.
struct Picture {
    enum class Coding { jpeg, deflated, bare };

    std::shared_ptr<Buffer> data;
    Coding coding = Coding::bare;
    Predictor predictor = Predictor::none;
    SampleLayout layout;
    /// The colours of indices, `paletteChannels` bytes each; empty for other pictures.
    Bytes palette;
    int paletteChannels = 0;
    /// Whether it is another picture's transparency.
    bool isMask = false;
    /// Whether its samples may change: not where they are keys, or of colours that don't stand it.
    bool mayChange = false;
    /// No larger than it is; its own where it must keep its size.
    PictureShape target;
    /// Bytes it takes in the document now.
    std::size_t size = 0;

    ByteView bytes() const { return {data->getBuffer(), data->getSize()}; }
};

/// A smaller coding of a picture: JPEG, or deflated samples of 8 bits (the picture's own where they are
/// kept).
struct SmallerPicture {
    Bytes data;
    bool isJpeg = false;
    Predictor predictor = Predictor::none;
    SampleLayout layout;
    /// Whether its samples are the palette's colours instead of indices.
    bool hasPaletteColours = false;
};

/// Bytes of memory that coding it anew takes at most.
std::size_t memoryFor(const Picture& picture);

/// Codes the picture anew for a screen: photographs as JPEG of the target's shape, drawings as they are.
/// Empty when that isn't smaller, or its data is damaged. Throws Cancelled.
std::optional<SmallerPicture> smallerPicture(const Picture& picture, const std::stop_token& stop);

}  // namespace tamble::pdf
