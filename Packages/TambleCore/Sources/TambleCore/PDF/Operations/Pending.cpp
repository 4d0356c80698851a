#include <TambleCore/PDF/Operations/Operations.h>

#include <stdexcept>

namespace tamble::pdf {

void compress(const SingleWork&) {
    throw std::logic_error("pending");
}

}  // namespace tamble::pdf
