#include <TambleCore/Images/Codec/Jpeg/JpegFailure.h>
#include <TambleCore/Images/Codec/Jpeg/JpegWriter.h>
#include <TambleCore/Images/ConversionError.h>

#include <cmath>
#include <cstring>

namespace tamble {
namespace {

/// One row of blocks of one channel, filled up to whole blocks by repeating its last column and row.
class PaddedRows {
  public:
    PaddedRows(const vips::VImage& plane, std::size_t stride, int height)
        : from_(static_cast<const std::uint8_t*>(plane.data())),
          width_(static_cast<std::size_t>(plane.width())),
          planeHeight_(plane.height()),
          stride_(stride),
          samples_(stride * static_cast<std::size_t>(height)) {
        for (int row = 0; row < height; ++row)
            rows_.push_back(samples_.data() + static_cast<std::size_t>(row) * stride);
    }

    void fill(int top) {
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            const auto source =
                static_cast<std::size_t>(std::min(top + static_cast<int>(row), planeHeight_ - 1));
            std::memcpy(rows_[row], from_ + source * width_, width_);
            std::memset(rows_[row] + width_, rows_[row][width_ - 1], stride_ - width_);
        }
    }

    JSAMPARRAY rows() { return rows_.data(); }
    int height() const { return static_cast<int>(rows_.size()); }

  private:
    const std::uint8_t* from_;
    std::size_t width_;
    int planeHeight_;
    std::size_t stride_;
    std::vector<std::uint8_t> samples_;
    std::vector<JSAMPROW> rows_;
};

/// libjpeg's side of the work; nothing in its functions needs a destructor.
struct Writer {
    jpeg_compress_struct codec{};
    JpegFailure failure;
    unsigned char* buffer = nullptr;
    unsigned long size = 0;

    Writer() = default;
    ~Writer() {
        jpeg_destroy_compress(&codec);
        std::free(buffer);
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    bool start(int width, int height, int channels, int sampling, const Encoding& encoding) {
        codec.err = &failure.manager;
        codec.client_data = &failure;
        if (setjmp(failure.jump) != 0) return false;
        jpeg_create_compress(&codec);
        jpeg_mem_dest(&codec, &buffer, &size);
        codec.image_width = static_cast<JDIMENSION>(width);
        codec.image_height = static_cast<JDIMENSION>(height);
        codec.input_components = channels;
        codec.in_color_space = channels == 1 ? JCS_GRAYSCALE : JCS_YCbCr;
        jpeg_set_defaults(&codec);
        jpeg_set_quality(&codec, static_cast<int>(std::lround(encoding.factor * 100)), TRUE);
        codec.optimize_coding = TRUE;
        codec.comp_info[0].h_samp_factor = sampling;
        codec.comp_info[0].v_samp_factor = sampling;
        if (encoding.smallest) jpeg_simple_progression(&codec);
        codec.raw_data_in = TRUE;
        jpeg_start_compress(&codec, TRUE);
        return true;
    }
    bool write(JSAMPIMAGE rows, JDIMENSION lines) {
        if (setjmp(failure.jump) != 0) return false;
        return jpeg_write_raw_data(&codec, rows, lines) == lines;
    }
    bool finish() {
        if (setjmp(failure.jump) != 0) return false;
        jpeg_finish_compress(&codec);
        return true;
    }
};

}  // namespace

Bytes encodedJpeg(std::span<const vips::VImage> planes, const Encoding& encoding) {
    Writer writer;
    const auto check = [&](bool done) {
        if (done) return;
        throw ConversionError(ConversionError::Case::encodeFailed,
                              writer.failure.text(reinterpret_cast<jpeg_common_struct*>(&writer.codec)));
    };
    const vips::VImage& luma = planes.front();
    const bool halvesColour =
        planes.size() == 3 && (planes[1].width() != luma.width() || planes[1].height() != luma.height());
    const int sampling = halvesColour ? 2 : 1;
    check(writer.start(luma.width(), luma.height(), static_cast<int>(planes.size()), sampling, encoding));

    std::vector<PaddedRows> rows;
    std::array<JSAMPARRAY, 3> pointers{};
    for (std::size_t channel = 0; channel < planes.size(); ++channel) {
        const int blocks = channel == 0 ? sampling : 1;
        const auto mcu = static_cast<std::size_t>(blocks) * DCTSIZE;
        rows.emplace_back(planes[channel],
                          (static_cast<std::size_t>(planes[channel].width()) + mcu - 1) / mcu * mcu,
                          blocks * DCTSIZE);
        pointers[channel] = rows.back().rows();
    }
    const int lines = sampling * DCTSIZE;
    for (int top = 0; top < luma.height(); top += lines) {
        for (std::size_t channel = 0; channel < rows.size(); ++channel)
            rows[channel].fill(top / lines * rows[channel].height());
        check(writer.write(pointers.data(), static_cast<JDIMENSION>(lines)));
    }
    check(writer.finish());
    const auto* const data = reinterpret_cast<const std::byte*>(writer.buffer);
    return {data, data + writer.size};
}

}  // namespace tamble
