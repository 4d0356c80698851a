#include <TambleCore/PDF/Pictures/Jpeg.h>
#include <TambleCore/Support/WorkContext.h>

namespace tamble::pdf {
namespace {

constexpr double mostHeld = 200e6;
constexpr double mostPixels = 1e9;
/// Encoders write about ten; more only cost time.
constexpr int mostScans = 100;

/// Progressive files are read whole before the first row comes; this is called in between.
void leaveWhenStopped(jpeg_common_struct* codec) {
    auto& failure = *static_cast<JpegFailure*>(codec->client_data);
    const auto& reader = *reinterpret_cast<jpeg_decompress_struct*>(codec);
    failure.stopped = failure.stop.stop_requested();
    if (failure.stopped || reader.input_scan_number > mostScans) std::longjmp(failure.jump, 1);
}

/// Whatever is odd about a picture, it may not look the same after decoding it in another size.
void leaveWhenWarned(jpeg_common_struct* codec, int level) {
    if (level < 0) std::longjmp(static_cast<JpegFailure*>(codec->client_data)->jump, 1);
}

}  // namespace

struct JpegRows::State {
    jpeg_decompress_struct codec{};
    jpeg_progress_mgr progress{};
    JpegFailure failure;

    explicit State(const std::stop_token& stop) : failure(stop) {
        failure.manager.emit_message = leaveWhenWarned;
    }
    ~State() { jpeg_destroy_decompress(&codec); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    // Each answers false when it failed; nothing in them needs a destructor.
    bool readHeader(ByteView file) {
        codec.err = &failure.manager;
        codec.client_data = &failure;
        if (setjmp(failure.jump) != 0) return false;
        jpeg_create_decompress(&codec);
        progress.progress_monitor = leaveWhenStopped;
        codec.progress = &progress;
        jpeg_mem_src(&codec, file.data(), file.size());
        return jpeg_read_header(&codec, TRUE) == JPEG_HEADER_OK;
    }
    bool start() {
        if (setjmp(failure.jump) != 0) return false;
        return jpeg_start_decompress(&codec) != FALSE;
    }
    bool read(JSAMPROW row) {
        if (setjmp(failure.jump) != 0) return false;
        return jpeg_read_scanlines(&codec, &row, 1) == 1;
    }

    bool finish() {
        if (setjmp(failure.jump) != 0) return false;
        return jpeg_finish_decompress(&codec) != FALSE;
    }

    /// All samples of a picture that comes in several scans are held until the last, in 16 bits.
    double heldBytes() {
        if (!jpeg_has_multiple_scans(&codec)) return 0;
        return 2.0 * codec.image_width * codec.image_height * codec.num_components;
    }

    bool isKnown() {
        const int channels = codec.num_components;
        const double pixels = static_cast<double>(codec.image_width) * codec.image_height;
        if (codec.data_precision != 8 || pixels > mostPixels) return false;
        if (heldBytes() > mostHeld) return false;
        switch (codec.jpeg_color_space) {
            case JCS_GRAYSCALE:
                return channels == 1;
            case JCS_RGB:
            case JCS_YCbCr:
                return channels == 3;
            case JCS_CMYK:
            case JCS_YCCK:
                return channels == 4;
            default:
                return false;
        }
    }
};

JpegRows::JpegRows(std::unique_ptr<State> state) : state_(std::move(state)) {}
JpegRows::JpegRows(JpegRows&&) noexcept = default;
JpegRows::~JpegRows() = default;

std::optional<JpegRows> JpegRows::open(ByteView file, const std::stop_token& stop) {
    auto state = std::make_unique<State>(stop);
    if (!state->readHeader(file) || !state->isKnown()) return std::nullopt;
    return JpegRows(std::move(state));
}

PictureShape JpegRows::shape() const {
    return {static_cast<int>(state_->codec.image_width), static_cast<int>(state_->codec.image_height)};
}

JpegColours JpegRows::colours() const {
    switch (state_->codec.jpeg_color_space) {
        case JCS_GRAYSCALE:
            return JpegColours::gray;
        case JCS_RGB:
            return JpegColours::rgb;
        case JCS_CMYK:
            return JpegColours::cmyk;
        case JCS_YCCK:
            return JpegColours::lumaAndBlack;
        default:
            return JpegColours::luma;
    }
}

int JpegRows::channels() const {
    return state_->codec.num_components;
}

std::size_t JpegRows::heldBytes() const {
    return static_cast<std::size_t>(state_->heldBytes());
}

bool JpegRows::start(PictureShape target) {
    auto& codec = state_->codec;
    const PictureShape whole = shape();
    constexpr unsigned eighths = 8;
    codec.scale_denom = eighths;
    codec.scale_num = 1;
    const auto isEnough = [&](int side, int wanted) {
        return (std::int64_t{side} * codec.scale_num + eighths - 1) / eighths >= wanted;
    };
    while (codec.scale_num < eighths &&
           !(isEnough(whole.width, target.width) && isEnough(whole.height, target.height)))
        ++codec.scale_num;
    codec.out_color_space = codec.jpeg_color_space;
    codec.dct_method = JDCT_ISLOW;
    const bool started = state_->start();
    if (state_->failure.stopped) throw Cancelled();
    return started;
}

PictureShape JpegRows::decodedShape() const {
    return {static_cast<int>(state_->codec.output_width), static_cast<int>(state_->codec.output_height)};
}

bool JpegRows::read(std::span<std::uint8_t> row) {
    const bool done = state_->read(row.data());
    if (state_->failure.stopped || state_->failure.stop.stop_requested()) throw Cancelled();
    return done;
}

bool JpegRows::finish() {
    return state_->finish();
}

}  // namespace tamble::pdf
