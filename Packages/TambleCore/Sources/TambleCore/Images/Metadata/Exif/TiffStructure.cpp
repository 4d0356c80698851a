#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>

#include <array>
#include <set>

namespace tamble::tiff {
namespace {

constexpr std::size_t headerSize = 8;
constexpr std::size_t entrySize = 12;
/// Far more than any real file has; a bound for files that want to be slow.
constexpr std::size_t mostDirectories = 64;
constexpr std::size_t mostEntries = 20'000;

constexpr std::uint16_t typeShort = 3;
constexpr std::uint16_t typeLong = 4;

std::optional<ByteOrder> byteOrder(ByteView bytes) {
    using namespace std::string_view_literals;
    if (startsWith(bytes, "II*\0"sv)) return ByteOrder::little;
    if (startsWith(bytes, "MM\0*"sv)) return ByteOrder::big;
    return std::nullopt;
}

class Parser {
  public:
    Parser(ByteView bytes, ByteOrder order) { result_ = {bytes, order, {}}; }

    std::optional<Structure> parse() {
        const auto first = numberAt<std::uint32_t>(result_.bytes, 4, result_.order);
        if (!first || !add({.at = *first})) return std::nullopt;
        for (std::size_t i = 0; i < result_.directories.size(); ++i) addChildren(i);
        return std::move(result_);
    }

  private:
    bool add(Directory directory) {
        if (directory.at < headerSize || result_.directories.size() == mostDirectories) return false;
        const auto count = numberAt<std::uint16_t>(result_.bytes, directory.at, result_.order);
        if (!count || *count == 0 || entries_ + *count > mostEntries) return false;
        if (!slice(result_.bytes, directory.at + 2, *count * entrySize)) return false;
        if (!seen_.insert(directory.at).second) return false;
        entries_ += *count;
        for (std::size_t i = 0; i < *count; ++i) {
            directory.entries.push_back(entry(directory.at + 2 + i * entrySize));
        }
        result_.directories.push_back(std::move(directory));
        return true;
    }

    Entry entry(std::size_t at) const {
        const ByteView bytes = result_.bytes;
        Entry result;
        result.at = at;
        result.tag = *numberAt<std::uint16_t>(bytes, at, result_.order);
        result.type = *numberAt<std::uint16_t>(bytes, at + 2, result_.order);
        result.count = *numberAt<std::uint32_t>(bytes, at + 4, result_.order);
        result.size = std::size_t{result.count} * sizeOfType(result.type);
        result.valueAt = result.isInline() ? at + 8 : *numberAt<std::uint32_t>(bytes, at + 8, result_.order);
        result.readable =
            sizeOfType(result.type) != 0 && slice(bytes, result.valueAt, result.size).has_value();
        return result;
    }

    void addChildren(std::size_t parent) {
        // By value: adding a directory moves the others.
        const Directory directory = result_.directories[parent];
        for (const Entry& pointer : directory.entries) {
            if (const auto kind = kindBehind(pointer.tag)) {
                for (const std::uint32_t at : result_.numbers(pointer)) {
                    add({.kind = *kind, .at = at, .parent = parent, .parentTag = pointer.tag});
                }
            }
        }
        if (directory.kind != DirectoryKind::page) return;
        const std::size_t nextAt = directory.at + 2 + directory.entries.size() * entrySize;
        const auto next = numberAt<std::uint32_t>(result_.bytes, nextAt, result_.order);
        if (next && *next != 0) add({.kind = DirectoryKind::page, .at = *next, .parent = parent});
    }

    static std::optional<DirectoryKind> kindBehind(std::uint16_t tag) {
        switch (tag) {
            case tag::exifDirectory:
                return DirectoryKind::exif;
            case tag::gpsDirectory:
                return DirectoryKind::gps;
            case tag::interopDirectory:
                return DirectoryKind::interop;
            case tag::subDirectories:
                return DirectoryKind::sub;
            default:
                return std::nullopt;
        }
    }

    Structure result_;
    std::set<std::size_t> seen_;
    std::size_t entries_ = 0;
};

}  // namespace

const Entry* Directory::find(std::uint16_t tag) const {
    const auto found = std::ranges::find(entries, tag, &Entry::tag);
    return found == entries.end() ? nullptr : &*found;
}

std::vector<std::uint32_t> Structure::numbers(const Entry& entry) const {
    std::vector<std::uint32_t> result;
    constexpr std::uint16_t typeByte = 1;
    constexpr std::uint16_t typeDirectory = 13;
    const bool isNumber = entry.type == typeByte || entry.type == typeShort || entry.type == typeLong ||
                          entry.type == typeDirectory;
    if (!entry.readable || !isNumber) return result;
    result.reserve(entry.count);
    const std::size_t step = sizeOfType(entry.type);
    for (std::size_t i = 0; i < entry.count; ++i) {
        const std::size_t at = entry.valueAt + i * step;
        if (step == 1) {
            result.push_back(*numberAt<std::uint8_t>(bytes, at, order));
        } else if (step == 2) {
            result.push_back(*numberAt<std::uint16_t>(bytes, at, order));
        } else {
            result.push_back(*numberAt<std::uint32_t>(bytes, at, order));
        }
    }
    return result;
}

std::optional<std::uint32_t> Structure::number(const Directory& directory, std::uint16_t tag) const {
    const Entry* entry = directory.find(tag);
    if (entry == nullptr || entry->count != 1) return std::nullopt;
    const auto all = numbers(*entry);
    return all.empty() ? std::nullopt : std::optional(all.front());
}

std::optional<Structure> parsed(ByteView bytes) {
    const auto order = byteOrder(bytes);
    return order ? Parser(bytes, *order).parse() : std::nullopt;
}

std::size_t sizeOfType(std::uint16_t type) {
    // BYTE, ASCII, SHORT, LONG, RATIONAL, SBYTE, UNDEFINED, SSHORT, SLONG, SRATIONAL, FLOAT, DOUBLE, IFD.
    constexpr std::array<std::size_t, 14> sizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
    return type < sizes.size() ? sizes[type] : 0;
}

std::optional<std::vector<Range>> pictureData(const Structure& structure, const Directory& directory) {
    constexpr std::array<std::pair<std::uint16_t, std::uint16_t>, 3> pairs{{
        {tag::stripOffsets, tag::stripByteCounts},
        {tag::tileOffsets, tag::tileByteCounts},
        {tag::thumbnailOffset, tag::thumbnailLength},
    }};
    std::vector<Range> result;
    for (const auto& [offsetTag, sizeTag] : pairs) {
        const Entry* offsetEntry = directory.find(offsetTag);
        if (offsetEntry == nullptr) continue;
        const Entry* sizeEntry = directory.find(sizeTag);
        const auto offsets = structure.numbers(*offsetEntry);
        const auto sizes =
            sizeEntry == nullptr ? std::vector<std::uint32_t>{} : structure.numbers(*sizeEntry);
        if (offsets.empty() || offsets.size() != sizes.size()) return std::nullopt;
        for (std::size_t i = 0; i < offsets.size(); ++i) {
            if (!slice(structure.bytes, offsets[i], sizes[i])) return std::nullopt;
            result.push_back({offsets[i], sizes[i]});
        }
    }
    return result;
}

int orientation(ByteView block) {
    const auto structure = parsed(block);
    if (!structure) return 1;
    const auto stored = structure->number(structure->directories.front(), tag::orientation);
    return stored && *stored >= 1 && *stored <= 8 ? static_cast<int>(*stored) : 1;
}

Bytes blockWithOrientation(int orientation) {
    constexpr ByteOrder order = ByteOrder::big;
    Bytes result = copied(asBytes("MM"));
    appendNumber(result, std::uint16_t{42}, order);
    appendNumber(result, std::uint32_t{headerSize}, order);
    appendNumber(result, std::uint16_t{1}, order);
    appendNumber(result, tag::orientation, order);
    appendNumber(result, typeShort, order);
    appendNumber(result, std::uint32_t{1}, order);
    appendNumber(result, static_cast<std::uint16_t>(orientation), order);
    appendNumber(result, std::uint16_t{0}, order);
    appendNumber(result, std::uint32_t{0}, order);
    return result;
}

}  // namespace tamble::tiff
