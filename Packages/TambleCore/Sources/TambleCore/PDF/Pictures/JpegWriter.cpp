#include <TambleCore/PDF/Pictures/Jpeg.h>

#include <cstdlib>

namespace tamble::pdf {
namespace {

/// From about here on several passes are smaller than one.
constexpr std::int64_t fewestProgressivePixels = 20'000;

struct Coding {
    J_COLOR_SPACE given;
    J_COLOR_SPACE coded;
    int channels;
};

Coding codingOf(JpegColours colours) {
    switch (colours) {
        case JpegColours::gray:
            return {JCS_GRAYSCALE, JCS_GRAYSCALE, 1};
        case JpegColours::rgb:
            return {JCS_RGB, JCS_YCbCr, 3};
        case JpegColours::luma:
            return {JCS_YCbCr, JCS_YCbCr, 3};
        case JpegColours::cmyk:
            return {JCS_CMYK, JCS_YCCK, 4};
        case JpegColours::lumaAndBlack:
            break;
    }
    return {JCS_YCCK, JCS_YCCK, 4};
}

}  // namespace

struct JpegWriter::State {
    jpeg_compress_struct codec{};
    JpegFailure failure;
    unsigned char* buffer = nullptr;
    unsigned long size = 0;
    bool failed = false;

    State() = default;
    ~State() {
        jpeg_destroy_compress(&codec);
        std::free(buffer);
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    // Each answers false when it failed; nothing in them needs a destructor.
    bool start(PictureShape shape, Coding coding, int quality) {
        codec.err = &failure.manager;
        codec.client_data = &failure;
        if (setjmp(failure.jump) != 0) return false;
        jpeg_create_compress(&codec);
        jpeg_mem_dest(&codec, &buffer, &size);
        codec.image_width = static_cast<JDIMENSION>(shape.width);
        codec.image_height = static_cast<JDIMENSION>(shape.height);
        codec.input_components = coding.channels;
        codec.in_color_space = coding.given;
        jpeg_set_defaults(&codec);
        // Sets the sampling as well: half the colours each way.
        jpeg_set_colorspace(&codec, coding.coded);
        jpeg_set_quality(&codec, quality, TRUE);
        codec.optimize_coding = TRUE;
        if (std::int64_t{shape.width} * shape.height >= fewestProgressivePixels)
            jpeg_simple_progression(&codec);
        jpeg_start_compress(&codec, TRUE);
        return true;
    }
    bool put(JSAMPROW row) {
        if (setjmp(failure.jump) != 0) return false;
        return jpeg_write_scanlines(&codec, &row, 1) == 1;
    }
    bool finish() {
        if (setjmp(failure.jump) != 0) return false;
        jpeg_finish_compress(&codec);
        return true;
    }
};

JpegWriter::JpegWriter(PictureShape shape, JpegColours colours, int quality)
    : state_(std::make_unique<State>()) {
    state_->failed = !state_->start(shape, codingOf(colours), quality);
}

JpegWriter::~JpegWriter() = default;

void JpegWriter::put(ByteView row) {
    // libjpeg's interface predates const; it only reads the row.
    if (!state_->failed) state_->failed = !state_->put(const_cast<JSAMPROW>(row.data()));
}

std::optional<Bytes> JpegWriter::finish() {
    if (state_->failed) return std::nullopt;
    if (!state_->finish()) {
        // It may have been moved elsewhere, which only a finished writer tells.
        state_->buffer = nullptr;
        return std::nullopt;
    }
    return Bytes(state_->buffer, state_->buffer + state_->size);
}

}  // namespace tamble::pdf
