#pragma once

#include <TambleCore/Images/Codec/Jpeg/JpegFailure.h>
#include <TambleCore/PDF/Pictures/RowShrinker.h>

#include <memory>
#include <optional>

namespace tamble::pdf {

/// What a JPEG's samples mean, as far as coding them goes. Only those that are coded as luma and differences
/// of colour stand the halving of the latter.
enum class JpegColours { gray, rgb, luma, cmyk, lumaAndBlack };

/// Reads a JPEG's samples as they are coded, without conversion, so that they can be coded again as they
/// were.
class JpegRows {
  public:
    /// Reads the header; the bytes must outlive the reader. Empty when it isn't a JPEG of 8-bit samples of a
    /// known meaning, or one that takes too much memory or time to read.
    static std::optional<JpegRows> open(ByteView file, const std::stop_token& stop);
    ~JpegRows();
    JpegRows(JpegRows&&) noexcept;
    JpegRows& operator=(JpegRows&&) = delete;

    PictureShape shape() const;
    JpegColours colours() const;
    int channels() const;
    /// Bytes that are held before the first row comes.
    std::size_t heldBytes() const;

    /// Shrinks while decoding to the smallest shape of whole eighths that holds `target`; false when damaged.
    bool start(PictureShape target);
    PictureShape decodedShape() const;
    /// The next row; false at the first sign of damage. Throws Cancelled.
    bool read(std::span<std::uint8_t> row);
    /// After the last row: whether the file ends there as it should.
    bool finish();

  private:
    struct State;
    explicit JpegRows(std::unique_ptr<State> state);
    std::unique_ptr<State> state_;
};

/// Writes a JPEG row by row.
class JpegWriter {
  public:
    /// `quality` is libjpeg's, 1…100.
    JpegWriter(PictureShape shape, JpegColours colours, int quality);
    ~JpegWriter();
    JpegWriter(const JpegWriter&) = delete;
    JpegWriter& operator=(const JpegWriter&) = delete;

    void put(ByteView row);
    /// The file; empty when anything failed.
    std::optional<Bytes> finish();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace tamble::pdf
