#include <TambleCore/Images/Codec/Jpeg/JpegFailure.h>
#include <TambleCore/Images/Codec/Jpeg/JpegReader.h>
#include <TambleCore/Images/ConversionError.h>

namespace tamble {
namespace {

constexpr int mostChannels = 3;

/// The rows of one channel in one row of blocks.
struct Band {
    std::vector<std::uint8_t> samples;
    std::vector<JSAMPROW> rows;
};

}  // namespace

struct JpegReader::State {
    jpeg_decompress_struct codec{};
    jpeg_progress_mgr progress{};
    JpegFailure failure;

    explicit State(const WorkContext& context) : failure(context.stop) {}
    ~State() { jpeg_destroy_decompress(&codec); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    std::string text() { return failure.text(reinterpret_cast<jpeg_common_struct*>(&codec)); }

    // Each answers false when it failed; nothing in them needs a destructor.
    bool readHeader(ByteView file);
    bool start();
    bool readBand(JSAMPIMAGE rows, JDIMENSION lines);
    bool finish();
};

namespace {

/// Progressive files are read whole before the first row comes; this is called in between.
void leaveWhenStopped(jpeg_common_struct* codec) {
    auto& failure = *static_cast<JpegFailure*>(codec->client_data);
    if (!failure.stop.stop_requested()) return;
    failure.stopped = true;
    std::longjmp(failure.jump, 1);
}

}  // namespace

bool JpegReader::State::readHeader(ByteView file) {
    codec.err = &failure.manager;
    codec.client_data = &failure;
    if (setjmp(failure.jump) != 0) return false;
    jpeg_create_decompress(&codec);
    progress.progress_monitor = leaveWhenStopped;
    codec.progress = &progress;
    jpeg_mem_src(&codec, reinterpret_cast<const unsigned char*>(file.data()), file.size());
    return jpeg_read_header(&codec, TRUE) == JPEG_HEADER_OK;
}

bool JpegReader::State::start() {
    if (setjmp(failure.jump) != 0) return false;
    codec.raw_data_out = TRUE;
    codec.do_fancy_upsampling = FALSE;
    codec.dct_method = JDCT_ISLOW;
    return jpeg_start_decompress(&codec) != FALSE;
}

bool JpegReader::State::readBand(JSAMPIMAGE rows, JDIMENSION lines) {
    if (setjmp(failure.jump) != 0) return false;
    return jpeg_read_raw_data(&codec, rows, lines) == lines;
}

bool JpegReader::State::finish() {
    if (setjmp(failure.jump) != 0) return false;
    return jpeg_finish_decompress(&codec) != FALSE;
}

JpegReader::JpegReader(ByteView file, const WorkContext& context)
    : state_(std::make_unique<State>(context)), context_(context) {
    if (state_->readHeader(file)) return;
    throw ConversionError(ConversionError::Case::unreadable, state_->text());
}

JpegReader::~JpegReader() = default;

PictureSize JpegReader::size() const {
    return {static_cast<int>(state_->codec.image_width), static_cast<int>(state_->codec.image_height)};
}

int JpegReader::channels() const {
    return state_->codec.num_components;
}

bool JpegReader::hasLuma() const {
    const auto& codec = state_->codec;
    if (codec.data_precision != 8) return false;
    return (codec.jpeg_color_space == JCS_GRAYSCALE && codec.num_components == 1) ||
           (codec.jpeg_color_space == JCS_YCbCr && codec.num_components == 3);
}

void JpegReader::shrink(int divisor) {
    auto& codec = state_->codec;
    codec.scale_num = 1;
    codec.scale_denom = static_cast<unsigned>(divisor);
    jpeg_calc_output_dimensions(&codec);
    channelSizes_.clear();
    for (const auto& component : std::span(codec.comp_info, static_cast<std::size_t>(codec.num_components))) {
        channelSizes_.push_back(
            {static_cast<int>(component.downsampled_width), static_cast<int>(component.downsampled_height)});
    }
}

void JpegReader::read(const std::function<void(std::span<const PlaneRows>)>& take) {
    auto& codec = state_->codec;
    const auto check = [&](bool done) {
        if (done) return;
        if (state_->failure.stopped) throw Cancelled();
        throw ConversionError(ConversionError::Case::cannotDecode, state_->text());
    };
    check(state_->start());

    std::array<Band, mostChannels> bands;
    std::array<JSAMPARRAY, mostChannels> pointers{};
    std::array<PlaneRows, mostChannels> rows;
    const auto count = static_cast<std::size_t>(codec.num_components);
    for (std::size_t channel = 0; channel < count; ++channel) {
        const auto& component = codec.comp_info[channel];
        const auto height = static_cast<std::size_t>(component.v_samp_factor * component.DCT_scaled_size);
        const auto stride =
            std::size_t{component.width_in_blocks} * static_cast<std::size_t>(component.DCT_scaled_size);
        Band& band = bands[channel];
        band.samples.resize(stride * height);
        for (std::size_t row = 0; row < height; ++row)
            band.rows.push_back(band.samples.data() + row * stride);
        pointers[channel] = band.rows.data();
        rows[channel] = {
            .width = channelSizes_[channel].width, .samples = band.samples.data(), .stride = stride};
    }
    const auto lines = static_cast<JDIMENSION>(codec.max_v_samp_factor * codec.min_DCT_scaled_size);
    while (codec.output_scanline < codec.output_height) {
        context_.throwIfStopped();
        check(state_->readBand(pointers.data(), lines));
        for (std::size_t channel = 0; channel < count; ++channel) {
            const int wholeHeight = channelSizes_[channel].height;
            rows[channel].height =
                std::min(static_cast<int>(bands[channel].rows.size()), wholeHeight - rows[channel].top);
        }
        take(std::span(rows).first(count));
        for (auto& plane : rows) plane.top += plane.height;
    }
    check(state_->finish());
}

}  // namespace tamble
