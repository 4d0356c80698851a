#include <TambleCore/Images/Metadata/Containers/Deflate.h>

#include <zlib.h>

namespace tamble {
namespace {

const Bytef* bytesOf(ByteView view) {
    return reinterpret_cast<const Bytef*>(view.data());
}

}  // namespace

std::optional<Bytes> inflated(ByteView stream, std::size_t limit) {
    if (stream.empty() || stream.size() > limit) return std::nullopt;
    std::size_t room = std::min(limit, std::max<std::size_t>(4 * stream.size(), 4096));
    while (true) {
        Bytes result(room);
        uLongf size = result.size();
        const int answer =
            uncompress(reinterpret_cast<Bytef*>(result.data()), &size, bytesOf(stream), stream.size());
        if (answer == Z_OK) {
            result.resize(size);
            return result;
        }
        if (answer != Z_BUF_ERROR || size < room || room == limit) return std::nullopt;
        room = std::min(limit, 4 * room);
    }
}

Bytes deflated(ByteView data) {
    uLongf size = compressBound(data.size());
    Bytes result(size);
    compress(reinterpret_cast<Bytef*>(result.data()), &size, bytesOf(data), data.size());
    result.resize(size);
    return result;
}

}  // namespace tamble
