#include <TambleCore/Images/Metadata/Exif/TiffTree.h>

#include <array>

namespace tamble::tiff {
namespace {

constexpr std::size_t headerSize = 8;
constexpr std::size_t entrySize = 12;
constexpr std::uint16_t typeLong = 4;

/// The values' numbers from one byte order to the other.
void reverseNumbers(Bytes& bytes, std::uint16_t type) {
    constexpr std::uint16_t typeRational = 5;
    constexpr std::uint16_t typeSignedRational = 10;
    const std::size_t size = sizeOfType(type);
    const std::size_t unit = type == typeRational || type == typeSignedRational ? size / 2 : size;
    for (std::size_t at = 0; at + unit <= bytes.size(); at += unit) {
        const auto first = bytes.begin() + static_cast<std::ptrdiff_t>(at);
        std::reverse(first, first + static_cast<std::ptrdiff_t>(unit));
    }
}

Tree subtree(const Structure& structure, std::size_t index, ByteOrder order, const KeepsTag& keeps) {
    const Directory& directory = structure.directories[index];
    Tree result;
    for (const Entry& entry : directory.entries) {
        // Of two entries with one tag the first counts, as everywhere.
        if (!entry.readable || result.has(entry.tag) || !keeps(directory.kind, entry.tag)) continue;
        Tree::Value value{entry.tag, entry.type, entry.count, {}, {}};
        for (std::size_t i = index + 1; i < structure.directories.size(); ++i) {
            const Directory& child = structure.directories[i];
            if (child.parent == index && child.parentTag == entry.tag) {
                value.children.push_back(subtree(structure, i, order, keeps));
            }
        }
        const bool isPointer = entry.tag == tag::exifDirectory || entry.tag == tag::gpsDirectory ||
                               entry.tag == tag::interopDirectory || entry.tag == tag::subDirectories;
        if (value.children.empty()) {
            if (isPointer) continue;
            value.bytes = copied(structure.value(entry));
            if (order != structure.order) reverseNumbers(value.bytes, entry.type);
        }
        result.set(std::move(value));
    }
    return result;
}

class Writer {
  public:
    Writer(ByteOrder order, std::size_t offset) : order_(order), offset_(offset) {}

    void append(const Tree& tree) {
        const std::size_t at = bytes_.size();
        bytes_.resize(at + 2 + tree.values.size() * entrySize + 4);
        put(at, static_cast<std::uint16_t>(tree.values.size()));
        for (std::size_t i = 0; i < tree.values.size(); ++i) write(tree.values[i], at + 2 + i * entrySize);
    }

    Bytes take() { return std::move(bytes_); }

  private:
    template <typename Number>
    void put(std::size_t at, Number number) {
        putNumber(std::span(bytes_), at, number, order_);
    }

    std::uint32_t nextOffset() {
        if (bytes_.size() % 2 != 0) bytes_.push_back(std::byte{0});
        return static_cast<std::uint32_t>(offset_ + bytes_.size());
    }

    void write(const Tree::Value& value, std::size_t record) {
        Bytes bytes = value.bytes;
        std::uint16_t type = value.type;
        std::uint32_t count = value.count;
        for (const Tree& child : value.children) {
            appendNumber(bytes, nextOffset(), order_);
            append(child);
        }
        if (!value.children.empty()) {
            type = typeLong;
            count = static_cast<std::uint32_t>(value.children.size());
        }
        put(record, value.tag);
        put(record + 2, type);
        put(record + 4, count);
        if (bytes.size() <= 4) {
            std::ranges::copy(bytes, bytes_.begin() + static_cast<std::ptrdiff_t>(record + 8));
        } else {
            put(record + 8, nextOffset());
            tamble::append(bytes_, bytes);
        }
    }

    ByteOrder order_;
    std::size_t offset_;
    Bytes bytes_;
};

}  // namespace

bool Tree::has(std::uint16_t tag) const {
    return std::ranges::find(values, tag, &Value::tag) != values.end();
}

void Tree::set(Value value) {
    const auto at = std::ranges::lower_bound(values, value.tag, {}, &Value::tag);
    if (at != values.end() && at->tag == value.tag) {
        *at = std::move(value);
    } else {
        values.insert(at, std::move(value));
    }
}

Tree treeOf(const Structure& structure, ByteOrder order, const KeepsTag& keeps) {
    return subtree(structure, 0, order, keeps);
}

Bytes serialized(const Tree& tree, ByteOrder order, std::size_t offset) {
    Writer writer(order, offset);
    writer.append(tree);
    return writer.take();
}

Bytes block(const Tree& tree, ByteOrder order) {
    Bytes result = copied(asBytes(order == ByteOrder::little ? "II" : "MM"));
    appendNumber(result, std::uint16_t{42}, order);
    appendNumber(result, std::uint32_t{headerSize}, order);
    append(result, serialized(tree, order, headerSize));
    return result;
}

bool describesPhotograph(std::uint16_t tag) {
    constexpr std::array<std::uint16_t, 4> stays{tag::orientation, 0x011A, 0x011B, 0x0128};
    if (std::ranges::find(stays, tag) != stays.end()) return true;
    // The last is an image editor's layers: a picture of its own.
    constexpr std::array<std::uint16_t, 7> others{
        tag::xmp, tag::iptc, tag::photoshop, tag::subDirectories, tag::thumbnailOffset, tag::thumbnailLength,
        0x935C};
    return std::ranges::find(others, tag) == others.end() &&
           std::ranges::find(tag::pixels, tag) == tag::pixels.end();
}

}  // namespace tamble::tiff
