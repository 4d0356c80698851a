#include <TambleCore/Images/Metadata/Containers/WebPChunks.h>

#include <webp/mux.h>

namespace tamble::webp {
namespace {

constexpr std::size_t headerSize = 12;

struct MuxDelete {
    void operator()(WebPMux* mux) const { WebPMuxDelete(mux); }
};

WebPData dataOf(ByteView bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

}  // namespace

std::optional<Layout> layout(ByteView file) {
    if (!startsWith(file, "RIFF") ||
        !startsWith(file.subspan(std::min<std::size_t>(8, file.size())), "WEBP")) {
        return std::nullopt;
    }
    const auto size = numberAt<std::uint32_t>(file, 4, ByteOrder::little);
    const auto riff = slice(file, 0, std::size_t{*size} + 8);
    if (!riff) return std::nullopt;
    Layout result;
    result.end = riff->size();
    std::size_t at = headerSize;
    while (at < riff->size()) {
        const auto length = numberAt<std::uint32_t>(*riff, at + 4, ByteOrder::little);
        const auto data = length ? slice(*riff, at + 8, *length) : std::nullopt;
        if (!data) return std::nullopt;
        result.chunks.push_back({asText(riff->subspan(at, 4)), *data});
        at += 8 + std::size_t{*length} + *length % 2;
    }
    return result;
}

void appendStart(Bytes& file) {
    append(file, asBytes("RIFF----WEBP"));
}

void appendChunk(Bytes& file, std::string_view type, ByteView data) {
    append(file, asBytes(type));
    appendNumber(file, static_cast<std::uint32_t>(data.size()), ByteOrder::little);
    append(file, data);
    if (data.size() % 2 != 0) file.push_back(std::byte{0});
}

void finish(Bytes& file) {
    putNumber(std::span(file), 4, static_cast<std::uint32_t>(file.size() - 8), ByteOrder::little);
}

std::optional<Bytes> withBlocks(ByteView file, const MetadataBlocks& blocks) {
    const WebPData source = dataOf(file);
    const std::unique_ptr<WebPMux, MuxDelete> mux(WebPMuxCreate(&source, 0));
    if (!mux) return std::nullopt;
    const auto put = [&mux](const char* type, const std::optional<Bytes>& block) {
        if (!block) return true;
        const WebPData data = dataOf(*block);
        return WebPMuxSetChunk(mux.get(), type, &data, 1) == WEBP_MUX_OK;
    };
    WebPData present{};
    const bool hasProfile = WebPMuxGetChunk(mux.get(), "ICCP", &present) == WEBP_MUX_OK;
    if ((!hasProfile && !put("ICCP", blocks.icc)) || !put("EXIF", blocks.exif) || !put("XMP ", blocks.xmp)) {
        return std::nullopt;
    }
    WebPData assembled{};
    if (WebPMuxAssemble(mux.get(), &assembled) != WEBP_MUX_OK) return std::nullopt;
    Bytes result = copied(std::as_bytes(std::span(assembled.bytes, assembled.size)));
    WebPDataClear(&assembled);
    return result;
}

}  // namespace tamble::webp
