#include <TambleCore/Intake/MediaTypes.h>

namespace tamble::MediaTypes {

bool isVideo(const std::optional<ContentType>& type) {
    return type && type->conformsTo("public.movie");
}

bool isAudio(const std::optional<ContentType>& type) {
    return type && type->conformsTo("public.audio");
}

bool needsFFmpegToRead(const std::optional<ContentType>& type) {
    return isVideo(type) || isAudio(type);
}

}  // namespace tamble::MediaTypes
