#include <TambleCore/PDF/Operations/Operations.h>

#include <stdexcept>

namespace tamble::pdf {

void compress(const SingleWork& work) {
    if (work.settings.compression == PDFCompression::smallest) return makePagesPictures(work);
    throw std::logic_error("pending");
}

}  // namespace tamble::pdf
