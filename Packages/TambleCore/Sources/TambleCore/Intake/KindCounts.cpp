#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Intake/KindCounts.h>
#include <TambleCore/Intake/MediaTypes.h>

namespace tamble {

KindCounts KindCounts::of(std::span<const InputFile> files) {
    KindCounts counts;
    for (const auto& file : files) {
        const auto& type = file.contentType;
        if (FileTypes::isReadableImage(type)) {
            ++counts.images;
        } else if (MediaTypes::isVideo(type)) {
            ++counts.videos;
        } else if (MediaTypes::isAudio(type)) {
            ++counts.audio;
        } else if (FileTypes::isPDF(type)) {
            ++counts.pdfs;
        } else if (FileTypes::isDocument(type) || FileTypes::isSubtitle(type)) {
            ++counts.documents;
        }
    }
    return counts;
}

}  // namespace tamble
