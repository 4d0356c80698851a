#include <TambleCore/Images/Codec/PictureLimits.h>
#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/PDF/Photos/Photo.h>
#include <TambleCore/PDF/Structure/Deflate.h>

#include <algorithm>
#include <bit>

#include <libdeflate.h>

namespace tamble::pdf {
namespace {

/// The header of a PNG (ISO 15948, 11.2.2).
struct Header {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint8_t depth = 0;
    std::uint8_t colourType = 0;
    std::uint8_t interlace = 0;

    static constexpr std::uint8_t palette = 3;
    bool hasAlpha() const { return colourType == 4 || colourType == 6; }
    int colours() const { return colourType == 2 || colourType == 6 ? 3 : 1; }

    /// Of all rows, each with its filter in front.
    std::size_t size() const {
        const std::size_t bits = static_cast<std::size_t>(colours() + (hasAlpha() ? 1 : 0)) * depth;
        return ((width * bits + 7) / 8 + 1) * height;
    }

    /// Whether there are such pictures (ISO 15948, table 11.1), of no more pixels than any has.
    bool isSound() const {
        const bool isDepth = std::has_single_bit(depth) && depth <= 16;
        const bool isCoarse = depth < 8;
        const bool isKind = colourType == 0 || (colourType == palette && depth <= 8) ||
                            ((colourType == 2 || hasAlpha()) && !isCoarse);
        return isDepth && isKind && width > 0 && height > 0 && height <= mostPixels / width;
    }
};

std::optional<Header> headerOf(const png::Layout& layout) {
    if (layout.chunks.empty() || layout.chunks.front().type != "IHDR") return std::nullopt;
    const ByteView data = layout.chunks.front().data;
    constexpr std::size_t size = 13;
    if (data.size() != size) return std::nullopt;
    return Header{.width = *numberAt<std::uint32_t>(data, 0, ByteOrder::big),
                  .height = *numberAt<std::uint32_t>(data, 4, ByteOrder::big),
                  .depth = *numberAt<std::uint8_t>(data, 8, ByteOrder::big),
                  .colourType = *numberAt<std::uint8_t>(data, 9, ByteOrder::big),
                  .interlace = *numberAt<std::uint8_t>(data, 12, ByteOrder::big)};
}

const png::Chunk* chunkOf(const png::Layout& layout, std::string_view type) {
    const auto found = std::ranges::find(layout.chunks, type, &png::Chunk::type);
    return found == layout.chunks.end() ? nullptr : &*found;
}

std::string codedData(const png::Layout& layout) {
    std::string data;
    for (const auto& chunk : layout.chunks) {
        if (chunk.type == "IDAT") data += asText(chunk.data);
    }
    return data;
}

/// PNG's rows with their filters are a coding that PDFs know.
std::string coding(int depth, int colours, std::uint32_t width) {
    return fmt::format(
        "/BitsPerComponent {} /Filter /FlateDecode /DecodeParms << /Predictor 15 /Colors {} "
        "/BitsPerComponent {} /Columns {} >> ",
        depth, colours, depth, width);
}

std::optional<std::string> inflated(std::string_view data, std::size_t size) {
    const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)> decompressor(
        libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
    std::string rows(size, '\0');
    const auto result =
        libdeflate_zlib_decompress(decompressor.get(), data.data(), data.size(), rows.data(), size, nullptr);
    if (result != LIBDEFLATE_SUCCESS) return std::nullopt;
    return rows;
}

struct Planes {
    std::string colours;
    std::string alpha;
};

/// PNG's filters foretell each byte by others of its own channel, so filtered rows come apart as they are.
Planes separated(const std::string& rows, const Header& header) {
    const std::size_t sample = header.depth / 8U;
    const std::size_t colours = static_cast<std::size_t>(header.colours()) * sample;
    Planes planes;
    planes.colours.reserve(rows.size());
    const char* at = rows.data();
    for (std::uint32_t row = 0; row < header.height; ++row) {
        planes.colours += *at;
        planes.alpha += *at++;
        for (std::uint32_t column = 0; column < header.width; ++column) {
            planes.colours.append(at, colours);
            planes.alpha.append(at + colours, sample);
            at += colours + sample;
        }
    }
    return planes;
}

void separateAlpha(Photo& photo, const Header& header, const std::string& rows) {
    constexpr int level = 6;
    const Planes planes = separated(rows, header);
    photo.bytes = deflated(planes.colours, level);
    photo.alpha = deflated(planes.alpha, level);
    photo.alphaCoding = coding(header.depth, 1, header.width);
}

void takeResolution(Photo& photo, const png::Chunk& chunk) {
    const auto x = numberAt<std::uint32_t>(chunk.data, 0, ByteOrder::big);
    const auto y = numberAt<std::uint32_t>(chunk.data, 4, ByteOrder::big);
    const auto unit = numberAt<std::uint8_t>(chunk.data, 8, ByteOrder::big);
    constexpr double metresPerInch = 0.0254;
    if (x && y && unit == 1) photo.setResolution(*x * metresPerInch, *y * metresPerInch);
}

std::string hexadecimal(ByteView bytes) {
    std::string text;
    for (const std::byte byte : bytes) text += fmt::format("{:02x}", std::to_integer<unsigned>(byte));
    return text;
}

}  // namespace

std::optional<Photo> pngPhoto(std::shared_ptr<MappedFile> file) {
    const auto layout = png::layout(file->bytes());
    const auto header = layout ? headerOf(*layout) : std::nullopt;
    if (!header || header->interlace != 0 || !header->isSound()) return std::nullopt;
    const png::Chunk* palette = chunkOf(*layout, "PLTE");
    const bool isIndexed = header->colourType == Header::palette;
    // A palette or a single colour that is see-through has no like in a PDF.
    if (chunkOf(*layout, "tRNS") != nullptr || chunkOf(*layout, "acTL") != nullptr) return std::nullopt;
    constexpr std::size_t longestPalette = 3 * 256;
    if (isIndexed && (palette == nullptr || palette->data.empty() || palette->data.size() % 3 != 0 ||
                      palette->data.size() > longestPalette))
        return std::nullopt;
    std::string data = codedData(*layout);
    // Readers of PDFs show what there is of damaged data, so a look before.
    const auto rows = inflated(data, header->size());
    if (!rows) return std::nullopt;
    Photo photo{.width = static_cast<int>(header->width),
                .height = static_cast<int>(header->height),
                .coding = coding(header->depth, header->colours(), header->width),
                .colours = header->colours() == 3 ? "/DeviceRGB" : "/DeviceGray"};
    if (header->hasAlpha()) {
        separateAlpha(photo, *header, *rows);
    } else {
        photo.bytes = std::move(data);
    }
    photo.data = {};
    if (isIndexed) {
        photo.colours = fmt::format("[/Indexed /DeviceRGB {} <{}>]", palette->data.size() / 3 - 1,
                                    hexadecimal(palette->data));
    } else if (const auto* chunk = chunkOf(*layout, "iCCP")) {
        if (const auto profile = png::profile(*chunk)) {
            photo.profile = PhotoProfile{.components = header->colours(),
                                         .filter = "/Filter /FlateDecode ",
                                         .data = std::string(asText(profile->stream))};
        }
    }
    if (const auto* chunk = chunkOf(*layout, "pHYs")) takeResolution(photo, *chunk);
    return photo;
}

}  // namespace tamble::pdf
