#include <TambleCore/PDF/Pictures/Flate.h>
#include <TambleCore/PDF/Structure/Deflate.h>
#include <TambleCore/Support/WorkContext.h>

#include <algorithm>
#include <memory>
#include <new>

#include <libdeflate.h>
#include <zlib.h>

namespace tamble::pdf {
namespace {

/// Of 1…12. Manuals come out 1 to 4 % smaller than with 9, in one and a half times the time; 12 takes twice
/// as long again and gains less than 1 %.
constexpr int level = 10;
/// libdeflate cannot be interrupted; at 8 MB/s it takes 0.1 s for this much.
constexpr std::size_t mostAtOnce = std::size_t{768} << 10U;
/// Of the quickest level, some 100 MB/s.
constexpr std::size_t mostForRoughSize = std::size_t{8} << 20U;
constexpr std::size_t piece = std::size_t{256} << 10U;

struct FreeCompressor {
    void operator()(libdeflate_compressor* compressor) const { libdeflate_free_compressor(compressor); }
};
struct FreeDecompressor {
    void operator()(libdeflate_decompressor* decompressor) const {
        libdeflate_free_decompressor(decompressor);
    }
};

libdeflate_compressor* threadsCompressor() {
    thread_local const std::unique_ptr<libdeflate_compressor, FreeCompressor> compressor(
        libdeflate_alloc_compressor(level));
    if (compressor == nullptr) throw std::bad_alloc();
    return compressor.get();
}

libdeflate_decompressor* threadsDecompressor() {
    thread_local const std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor(
        libdeflate_alloc_decompressor());
    if (decompressor == nullptr) throw std::bad_alloc();
    return decompressor.get();
}

class ZlibDeflater {
  public:
    ZlibDeflater() {
        if (deflateInit(&stream_, Z_BEST_COMPRESSION) != Z_OK) throw std::bad_alloc();
    }
    ~ZlibDeflater() { deflateEnd(&stream_); }
    ZlibDeflater(const ZlibDeflater&) = delete;
    ZlibDeflater& operator=(const ZlibDeflater&) = delete;

    void put(ByteView data, bool isLast, Bytes& to) {
        // zlib's interface predates const.
        stream_.next_in = const_cast<Bytef*>(data.data());
        stream_.avail_in = static_cast<uInt>(data.size());
        do {
            const std::size_t before = to.size();
            to.resize(before + piece);
            stream_.next_out = to.data() + before;
            stream_.avail_out = static_cast<uInt>(piece);
            deflate(&stream_, isLast ? Z_FINISH : Z_NO_FLUSH);
            to.resize(to.size() - stream_.avail_out);
        } while (stream_.avail_out == 0);
    }

  private:
    z_stream stream_{};
};

}  // namespace

std::optional<Bytes> inflated(ByteView stream, std::size_t limit) {
    Bytes data(std::min(limit, stream.size() * 4 + 1024));
    for (;;) {
        std::size_t used = 0;
        std::size_t size = 0;
        const auto result = libdeflate_zlib_decompress_ex(threadsDecompressor(), stream.data(), stream.size(),
                                                          data.data(), data.size(), &used, &size);
        if (result == LIBDEFLATE_SUCCESS) {
            data.resize(size);
            return data;
        }
        if (result != LIBDEFLATE_INSUFFICIENT_SPACE || data.size() == limit) return std::nullopt;
        data = Bytes(std::min(limit, data.size() * 4));
    }
}

Bytes deflated(ByteView data, const std::stop_token& stop) {
    if (stop.stop_requested()) throw Cancelled();
    if (data.size() <= mostAtOnce) {
        auto* const compressor = threadsCompressor();
        Bytes result(libdeflate_zlib_compress_bound(compressor, data.size()));
        result.resize(
            libdeflate_zlib_compress(compressor, data.data(), data.size(), result.data(), result.size()));
        result.shrink_to_fit();
        return result;
    }
    ZlibDeflater deflater;
    Bytes result;
    while (!data.empty()) {
        if (stop.stop_requested()) throw Cancelled();
        const auto part = data.first(std::min(data.size(), piece));
        data = data.subspan(part.size());
        deflater.put(part, data.empty(), result);
    }
    return result;
}

std::size_t roughlyDeflatedSize(ByteView data) {
    data = data.first(std::min(data.size(), mostForRoughSize));
    return deflated({reinterpret_cast<const char*>(data.data()), data.size()}, 1).size();
}

}  // namespace tamble::pdf
