#pragma once

#include <TambleCore/PDF/Pictures/RowShrinker.h>

#include <memory>
#include <optional>

namespace tamble::pdf {

/// How a picture's samples lie in its stream: rows of whole bytes, from the top.
struct SampleLayout {
    PictureShape shape;
    int channels = 1;
    /// A sample: 1, 2, 4, 8 or 16.
    int bits = 8;

    std::size_t rowBytes() const;
};

/// What was done to the samples before they were deflated (ISO 32000-1, 7.4.4.4): none, 2 as in TIFF, 10 and
/// more as in PNG.
enum class Predictor { none, tiff, png };

/// The samples of a stream, row by row, in bounded memory.
class SampleRows {
  public:
    /// Of a zlib stream, or of samples that lie there bare. The data must outlive it.
    static SampleRows inflating(ByteView stream, const SampleLayout& layout, Predictor predictor);
    static SampleRows bare(ByteView samples, const SampleLayout& layout);
    ~SampleRows();
    SampleRows(SampleRows&&) noexcept;
    SampleRows& operator=(SampleRows&&) = delete;

    /// The next row, valid until the one after it; empty when the data is damaged or ends early.
    ByteView next();

  private:
    class Source;
    explicit SampleRows(std::unique_ptr<Source> source);
    std::unique_ptr<Source> source_;
};

/// Turns rows of any layout into rows of 8 bits a sample, and indices into their colours.
class SampleExpander {
  public:
    /// `palette` holds `paletteChannels` bytes for each index, and is empty when samples are no indices.
    SampleExpander(const SampleLayout& layout, Bytes palette, int paletteChannels);

    int channels() const { return palette_.empty() ? layout_.channels : paletteChannels_; }
    ByteView expanded(ByteView row);

  private:
    std::uint8_t sampleAt(ByteView row, std::size_t index) const;

    SampleLayout layout_;
    Bytes palette_;
    int paletteChannels_;
    Bytes row_;
};

/// Rows of 8-bit samples, filtered as in PNG each in the way that promises to deflate best.
class PngFilter {
  public:
    PngFilter(std::size_t rowBytes, std::size_t pixelBytes);
    /// Appends the filtered row.
    void put(ByteView row, Bytes& to);

  private:
    std::size_t pixelBytes_;
    Bytes above_;
    std::vector<Bytes> candidates_;
};

}  // namespace tamble::pdf
