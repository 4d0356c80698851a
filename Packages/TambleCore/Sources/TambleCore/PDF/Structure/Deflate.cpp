#include <TambleCore/PDF/Structure/Deflate.h>

#include <memory>
#include <new>

#include <libdeflate.h>

namespace tamble::pdf {

std::string deflated(std::string_view bytes, int level) {
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(level), &libdeflate_free_compressor);
    if (compressor == nullptr) throw std::bad_alloc();
    std::string result(libdeflate_zlib_compress_bound(compressor.get(), bytes.size()), '\0');
    result.resize(
        libdeflate_zlib_compress(compressor.get(), bytes.data(), bytes.size(), result.data(), result.size()));
    return result;
}

}  // namespace tamble::pdf
