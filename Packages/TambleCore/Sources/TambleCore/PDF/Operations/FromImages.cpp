#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/Photos/PhotoDocument.h>

namespace tamble::pdf {

void fromImages(const CombinedWork& work) {
    writePhotos(work.files, work.destination, work.settings, work.context);
}

}  // namespace tamble::pdf
