#include <TambleCore/Images/Metadata/Containers/IsoItems.h>

namespace tamble::iso {
namespace {

constexpr std::size_t mostItems = 4096;

/// Reads big-endian numbers one after another; after the end everything is 0 and `good` false.
class Cursor {
  public:
    explicit Cursor(ByteView bytes) : bytes_(bytes) {}

    template <std::unsigned_integral Number>
    Number next() {
        const auto number = numberAt<Number>(bytes_, at_, ByteOrder::big);
        good_ = good_ && number.has_value();
        at_ += sizeof(Number);
        return number.value_or(0);
    }

    /// A number whose width the file chooses: 0, 4 or 8 bytes.
    std::uint64_t nextOfWidth(unsigned width) {
        if (width == 8) return next<std::uint64_t>();
        return width == 4 ? next<std::uint32_t>() : 0;
    }

    std::string_view nextText() {
        const std::string_view rest = asText(remaining());
        const std::string_view text = rest.substr(0, rest.find('\0'));
        at_ += text.size() + 1;
        return text;
    }

    ByteView remaining() const { return bytes_.subspan(std::min(at_, bytes_.size())); }
    bool good() const { return good_; }

  private:
    ByteView bytes_;
    std::size_t at_ = 0;
    bool good_ = true;
};

std::optional<ByteView> find(const std::vector<Box>& list, std::string_view type) {
    const auto found = std::ranges::find(list, type, &Box::type);
    return found == list.end() ? std::nullopt : std::optional(found->payload);
}

/// Item information entries (infe) of versions 2 and 3, the ones picture files use.
std::vector<Item> listed(ByteView itemInformation) {
    Cursor cursor(itemInformation);
    const auto version = cursor.next<std::uint32_t>() >> 24;
    if (version == 0) {
        cursor.next<std::uint16_t>();
    } else {
        cursor.next<std::uint32_t>();
    }
    std::vector<Item> result;
    for (const Box& box : boxes(cursor.remaining())) {
        if (box.type != "infe" || result.size() == mostItems) continue;
        Cursor entry(box.payload);
        const auto entryVersion = entry.next<std::uint32_t>() >> 24;
        if (entryVersion < 2) continue;
        Item item;
        item.id = entryVersion == 2 ? entry.next<std::uint16_t>() : entry.next<std::uint32_t>();
        entry.next<std::uint16_t>();  // protection
        const auto type = slice(entry.remaining(), 0, 4);
        if (!type) continue;
        item.type = asText(*type);
        entry.next<std::uint32_t>();
        entry.nextText();  // name
        if (item.type == "mime") item.contentType = entry.nextText();
        result.push_back(std::move(item));
    }
    return result;
}

bool holdsMetadata(const Item& item) {
    return item.type == "Exif" || item.type == "mime";
}

/// Fills in the items' data as the item location box (iloc) says.
void locate(std::vector<Item>& items, ByteView location, ByteView file, ByteView itemData) {
    Cursor cursor(location);
    const auto version = cursor.next<std::uint32_t>() >> 24;
    const auto sizes = cursor.next<std::uint16_t>();
    const unsigned offsetSize = sizes >> 12;
    const unsigned lengthSize = sizes >> 8 & 15U;
    const unsigned baseOffsetSize = sizes >> 4 & 15U;
    const unsigned indexSize = version == 0 ? 0 : sizes & 15U;
    const std::uint32_t count = version < 2 ? cursor.next<std::uint16_t>() : cursor.next<std::uint32_t>();
    for (std::uint32_t i = 0; i < count && cursor.good(); ++i) {
        const std::uint32_t id = version < 2 ? cursor.next<std::uint16_t>() : cursor.next<std::uint32_t>();
        const unsigned method = version == 0 ? 0 : cursor.next<std::uint16_t>() & 15U;
        cursor.next<std::uint16_t>();  // data reference
        const std::uint64_t base = cursor.nextOfWidth(baseOffsetSize);
        const auto item = std::ranges::find(items, id, &Item::id);
        const bool wanted = item != items.end() && holdsMetadata(*item) && method < 2;
        const ByteView home = method == 0 ? file : itemData;
        const auto extents = cursor.next<std::uint16_t>();
        for (std::uint16_t extent = 0; extent < extents && cursor.good(); ++extent) {
            cursor.nextOfWidth(indexSize);
            const std::uint64_t offset = base + cursor.nextOfWidth(offsetSize);
            const std::uint64_t length = cursor.nextOfWidth(lengthSize);
            if (!wanted || offset > home.size()) continue;
            const auto part = home.subspan(offset, std::min<std::uint64_t>(length, home.size() - offset));
            if (item->data.size() + part.size() <= largestBlock) append(item->data, part);
        }
    }
}

std::optional<Bytes> profileAmong(ByteView properties) {
    const auto container = find(boxes(properties), "ipco");
    if (!container) return std::nullopt;
    for (const Box& property : boxes(*container)) {
        if (property.type == "colr" &&
            (startsWith(property.payload, "prof") || startsWith(property.payload, "rICC"))) {
            return copied(property.payload.subspan(4));
        }
    }
    return std::nullopt;
}

}  // namespace

std::vector<Box> boxes(ByteView bytes) {
    std::vector<Box> result;
    while (bytes.size() >= 8 && result.size() < mostItems) {
        std::uint64_t size = *numberAt<std::uint32_t>(bytes, 0, ByteOrder::big);
        std::size_t header = 8;
        if (size == 1) {
            size = numberAt<std::uint64_t>(bytes, 8, ByteOrder::big).value_or(0);
            header = 16;
        } else if (size == 0) {
            size = bytes.size();
        }
        if (size < header || size > bytes.size()) break;
        result.push_back({asText(bytes.subspan(4, 4)), bytes.subspan(header, size - header)});
        bytes = bytes.subspan(size);
    }
    return result;
}

std::optional<Items> items(ByteView file) {
    const auto meta = find(boxes(file), "meta");
    if (!meta || meta->size() < 4) return std::nullopt;
    const std::vector<Box> inside = boxes(meta->subspan(4));
    Items result;
    if (const auto information = find(inside, "iinf")) result.items = listed(*information);
    if (const auto location = find(inside, "iloc")) {
        locate(result.items, *location, file, find(inside, "idat").value_or(ByteView{}));
    }
    if (const auto properties = find(inside, "iprp")) result.profile = profileAmong(*properties);
    return result;
}

std::optional<Bytes> exifStructure(ByteView itemData) {
    const auto offset = numberAt<std::uint32_t>(itemData, 0, ByteOrder::big);
    if (!offset || std::size_t{*offset} + 4 >= itemData.size()) return std::nullopt;
    return copied(itemData.subspan(4 + std::size_t{*offset}));
}

bool isXmp(const Item& item) {
    return item.type == "mime" && item.contentType == "application/rdf+xml";
}

}  // namespace tamble::iso
