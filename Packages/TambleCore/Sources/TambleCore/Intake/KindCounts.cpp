#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Intake/KindCounts.h>
#include <TambleCore/Intake/MediaTypes.h>

namespace tamble {

KindCounts KindCounts::of(std::span<const InputFile> files) {
    return of(typeCounts(files));
}

KindCounts KindCounts::of(const std::vector<TypeCount>& types) {
    KindCounts counts;
    for (const auto& [type, files] : types) {
        if (FileTypes::isReadableImage(type)) {
            counts.images += files;
        } else if (MediaTypes::isVideo(type)) {
            counts.videos += files;
        } else if (MediaTypes::isAudio(type)) {
            counts.audio += files;
        } else if (FileTypes::isPDF(type)) {
            counts.pdfs += files;
        } else if (FileTypes::isDocument(type) || FileTypes::isSubtitle(type)) {
            counts.documents += files;
        }
    }
    return counts;
}

}  // namespace tamble
