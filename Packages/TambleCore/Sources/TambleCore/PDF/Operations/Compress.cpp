#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/Pictures/MakeSmaller.h>
#include <TambleCore/PDF/Structure/Document.h>

#include <mutex>

#include <qpdf/Pl_Flate.hh>

namespace tamble::pdf {

void compress(const SingleWork& work) {
    if (work.settings.compression == PDFCompression::smallest) return makePagesPictures(work);
    // What the writer itself deflates; there is one level for the whole library.
    static std::once_flag once;
    constexpr int best = 9;
    std::call_once(once, [] { Pl_Flate::setCompressionLevel(best); });
    constexpr double shareOfPictures = 0.9;
    const Document document = Document::open(work.file.url, work.settings.password);
    if (isSealed(document)) work.context.leave(ItemNote::sealBroken);
    makeSmaller(document, work.destination.parent_path(), work.context, shareOfPictures);
    save(document, work.destination, work.context, shareOfPictures);
}

}  // namespace tamble::pdf
