#include <TambleCore/Images/Metadata/Containers/GifBlocks.h>

namespace tamble::gif {
namespace {

constexpr std::size_t screenEnd = 13;
constexpr std::size_t applicationSize = 11;

unsigned byteAt(ByteView file, std::size_t at) {
    return at < file.size() ? std::to_integer<unsigned>(file[at]) : 0;
}

/// The bytes of a colour table whose presence and size a flag byte tells.
std::size_t colourTable(unsigned flags) {
    return (flags & 0x80U) != 0 ? std::size_t{3} << ((flags & 7U) + 1) : 0;
}

/// Where the sub-blocks that begin at `at` have their closing zero.
std::optional<std::size_t> endOfSubBlocks(ByteView file, std::size_t at) {
    while (at < file.size()) {
        const unsigned length = byteAt(file, at);
        if (length == 0) return at;
        at += 1 + length;
    }
    return std::nullopt;
}

BlockKind kindOf(unsigned label) {
    switch (label) {
        case 0xF9:
            return BlockKind::graphicControl;
        case 0xFE:
            return BlockKind::comment;
        case 0x01:
            return BlockKind::plainText;
        case 0xFF:
            return BlockKind::application;
        default:
            return BlockKind::unknown;
    }
}

}  // namespace

std::optional<Layout> layout(ByteView file) {
    if (!startsWith(file, "GIF8") || file.size() < screenEnd) return std::nullopt;
    Layout result;
    std::size_t at = screenEnd + colourTable(byteAt(file, 10));
    while (at < file.size()) {
        const unsigned introducer = byteAt(file, at);
        if (introducer == 0x3B) {
            result.end = at + 1;
            return result;
        }
        Block block{BlockKind::image, {}, {}};
        if (introducer == 0x2C) {
            at += 10 + colourTable(byteAt(file, at + 9)) + 1;
        } else if (introducer == 0x21) {
            block.kind = kindOf(byteAt(file, at + 1));
            at += 2;
            if (block.kind == BlockKind::application && byteAt(file, at) == applicationSize) {
                const auto name = slice(file, at + 1, applicationSize);
                if (!name) return std::nullopt;
                block.application = asText(*name);
                at += 1 + applicationSize;
            }
        } else {
            return std::nullopt;
        }
        const auto end = endOfSubBlocks(file, at);
        if (!end) return std::nullopt;
        block.data = file.subspan(at, *end - at);
        result.blocks.push_back(block);
        at = *end + 1;
    }
    return std::nullopt;
}

Bytes content(ByteView subBlocks) {
    Bytes result;
    while (!subBlocks.empty()) {
        const std::size_t length = std::min(std::to_integer<std::size_t>(subBlocks[0]), subBlocks.size() - 1);
        append(result, subBlocks.subspan(1, length));
        subBlocks = subBlocks.subspan(1 + length);
    }
    return result;
}

std::optional<ByteView> xmp(const Block& block) {
    constexpr std::size_t closingTrick = 257;
    if (block.application != "XMP DataXMP" || block.data.size() < closingTrick) return std::nullopt;
    return block.data.first(block.data.size() - closingTrick);
}

}  // namespace tamble::gif
