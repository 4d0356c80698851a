#include <TambleCore/Images/Codec/Jpeg/JpegFailure.h>

#include <jerror.h>

namespace tamble {
namespace {

JpegFailure& failureOf(jpeg_common_struct* codec) {
    return *static_cast<JpegFailure*>(codec->client_data);
}

void leave(jpeg_common_struct* codec) {
    std::longjmp(failureOf(codec).jump, 1);
}

/// Warnings after which a part of the picture would be invented. Cameras leave harmless ones, such as extra
/// bytes before a marker.
void judge(jpeg_common_struct* codec, int level) {
    if (level >= 0) return;
    switch (codec->err->msg_code) {
        case JWRN_JPEG_EOF:
        case JWRN_HIT_MARKER:
        case JWRN_HUFF_BAD_CODE:
        case JWRN_ARITH_BAD_CODE:
        case JWRN_MUST_RESYNC:
            leave(codec);
            break;
        default:
            break;
    }
}

}  // namespace

JpegFailure::JpegFailure(std::stop_token token) : stop(std::move(token)) {
    jpeg_std_error(&manager);
    manager.error_exit = leave;
    manager.emit_message = judge;
    manager.output_message = [](jpeg_common_struct*) {};
}

std::string JpegFailure::text(jpeg_common_struct* codec) const {
    std::array<char, JMSG_LENGTH_MAX> text{};
    manager.format_message(codec, text.data());
    return text.data();
}

}  // namespace tamble
