#include <TambleCore/Images/Metadata/Exif/EditStructure.h>
#include <TambleCore/Images/Metadata/Exif/MakerNotePlaces.h>
#include <TambleCore/Images/Metadata/Exif/Thumbnail.h>
#include <TambleCore/Images/Metadata/Text/Iptc.h>
#include <TambleCore/Images/Metadata/Text/PhotoshopResources.h>
#include <TambleCore/Images/Metadata/Text/Xmp.h>

namespace tamble::tiff {
namespace {

constexpr std::size_t headerSize = 8;
constexpr std::size_t entrySize = 12;
constexpr std::uint16_t typeShort = 3;
constexpr std::uint16_t typeLong = 4;

/// The value without location; empty when nothing can be kept of it.
std::optional<Bytes> cleanedValue(std::uint16_t tag, ByteView value) {
    if (tag == tag::xmp) return xmp::edited(value, {.withoutLocation = true, .withoutAttachments = true});
    if (tag == tag::photoshop) return photoshop::withoutLocation(value);
    return iptc::withoutLocation(value);
}

bool holdsBlock(std::uint16_t tag) {
    return tag == tag::xmp || tag == tag::photoshop || tag == tag::iptc;
}

/// The same parts in order, those that meet made one.
std::vector<Range> merged(std::vector<Range> ranges) {
    std::ranges::sort(ranges, {}, &Range::at);
    std::vector<Range> result;
    for (const Range& range : ranges) {
        if (result.empty() || range.at > result.back().end()) {
            result.push_back(range);
        } else {
            result.back().size = std::max(result.back().end(), range.end()) - result.back().at;
        }
    }
    return result;
}

class Editor {
  public:
    Editor(Structure structure, const Edit& edit)
        : structure_(std::move(structure)),
          edit_(edit),
          result_(copied(structure_.bytes)),
          dropped_(structure_.directories.size()) {}

    std::optional<Bytes> run() {
        for (std::size_t i = 0; i < structure_.directories.size(); ++i) dropped_[i] = drops(i);
        tables_.push_back({0, headerSize});
        for (std::size_t i = 0; i < structure_.directories.size(); ++i) {
            if (!dropped_[i] && !keep(i)) return std::nullopt;
        }
        for (std::size_t i = 0; i < structure_.directories.size(); ++i) {
            if (structure_.directories[i].kind == DirectoryKind::gps && dropped_[i])
                noteGone(structure_.directories[i]);
        }
        if (tangled()) return std::nullopt;
        clearTheRest();
        for (const auto& [record, value] : longerValues_) appendValue(record, value);
        return std::move(result_);
    }

  private:
    std::span<std::byte> bytes() { return result_; }

    bool drops(std::size_t index) const {
        const Directory& directory = structure_.directories[index];
        if (index == 0) return false;
        if (dropped_[directory.parent]) return true;
        if (edit_.withoutLocation && directory.kind == DirectoryKind::gps) return true;
        if (directory.kind == DirectoryKind::page) {
            return edit_.withoutThumbnail || (edit_.withoutLocation && tellsMore(directory));
        }
        return !entryReachesAllChildren(directory.parent, directory.parentTag);
    }

    bool tellsMore(const Directory& thumbnail) const {
        if (thumbnail.find(tag::thumbnailOffset) == nullptr) return false;
        const auto data = pictureData(structure_, thumbnail);
        return !data || data->empty() ||
               carriesMetadata(structure_.bytes.subspan(data->back().at, data->back().size));
    }

    /// Thumbnails can stand in any directory, not only in one of their own.
    bool dropsThumbnail(const Directory& directory) const {
        return directory.find(tag::thumbnailOffset) != nullptr &&
               (edit_.withoutThumbnail || (edit_.withoutLocation && tellsMore(directory)));
    }

    bool entryReachesAllChildren(std::size_t parent, std::uint16_t tag) const {
        const Entry* pointer = structure_.directories[parent].find(tag);
        const auto children = std::ranges::count_if(structure_.directories, [&](const Directory& directory) {
            return directory.parentTag == tag && directory.parent == parent;
        });
        return pointer != nullptr &&
               static_cast<std::size_t>(children) == structure_.numbers(*pointer).size();
    }

    bool isPointer(const Entry& entry) const {
        return entry.tag == tag::exifDirectory || entry.tag == tag::gpsDirectory ||
               entry.tag == tag::interopDirectory || entry.tag == tag::subDirectories;
    }

    bool drops(std::size_t parent, const Entry& entry) const {
        if (entry.tag == tag::thumbnailOffset || entry.tag == tag::thumbnailLength)
            return dropsThumbnail(structure_.directories[parent]);
        if (isPointer(entry)) {
            return (edit_.withoutLocation && entry.tag == tag::gpsDirectory) ||
                   structure_.numbers(entry).empty() || !entryReachesAllChildren(parent, entry.tag);
        }
        if (!edit_.withoutLocation) return false;
        return !entry.readable || std::ranges::find(tag::georeference, entry.tag) != tag::georeference.end();
    }

    /// Writes the directory's table anew and notes what it refers to; false when nothing is left of the main
    /// one or its pictures are out of reach.
    bool keep(std::size_t index) {
        const Directory& directory = structure_.directories[index];
        std::vector<Bytes> records;
        std::vector<std::pair<std::size_t, Bytes>> longer;
        for (const Entry& entry : directory.entries) {
            if (drops(index, entry)) continue;
            Bytes record = copied(structure_.bytes.subspan(entry.at, entrySize));
            if (edit_.withoutLocation && holdsBlock(entry.tag)) {
                auto value = cleanedValue(entry.tag, structure_.value(entry));
                if (!value || value->empty()) continue;
                if (value->size() > std::max<std::size_t>(entry.size, 4)) {
                    longer.emplace_back(records.size(), std::move(*value));
                } else {
                    store(record, entry, *value);
                }
            } else {
                keepValue(entry);
            }
            if (edit_.upright) makeUpright(record, entry, directory.kind);
            records.push_back(std::move(record));
        }
        if (index == 0 && records.empty()) return false;
        const std::size_t tableSize = 2 + records.size() * entrySize;
        const std::size_t nextAt = directory.at + 2 + directory.entries.size() * entrySize;
        const bool hasNext = slice(structure_.bytes, nextAt, 4).has_value();
        tables_.push_back({directory.at, tableSize + (hasNext ? 4U : 0U)});
        putNumber(bytes(), directory.at, static_cast<std::uint16_t>(records.size()), structure_.order);
        for (std::size_t i = 0; i < records.size(); ++i) {
            std::ranges::copy(records[i], result_.begin() + std::ptrdiff_t(directory.at + 2 + i * entrySize));
        }
        if (hasNext) putNumber(bytes(), directory.at + tableSize, nextPage(index), structure_.order);
        for (auto& [record, value] : longer) {
            longerValues_.emplace_back(directory.at + 2 + record * entrySize, std::move(value));
        }
        auto pictures = pictureData(structure_, directory);
        // A thumbnail's part is the last.
        if (pictures && dropsThumbnail(directory))
            pictures->resize(pictures->size() -
                             structure_.numbers(*directory.find(tag::thumbnailOffset)).size());
        if (pictures) pictures_.insert(pictures_.end(), pictures->begin(), pictures->end());
        return pictures.has_value() || directory.kind != DirectoryKind::page || index != 0;
    }

    void keepValue(const Entry& entry) {
        if (!entry.readable) return;
        if (!entry.isInline()) values_.push_back({entry.valueAt, entry.size});
        if (edit_.withoutLocation && entry.tag == tag::makerNote) {
            for (const Range& place : placesInMakerNote(structure_, entry)) gone_.push_back(place);
        }
    }

    /// Puts a shorter value where the old one was and tells its length in the record. The values concerned
    /// are made of bytes; some writers count them in longer units.
    void store(Bytes& record, const Entry& entry, ByteView value) {
        const std::size_t unit = sizeOfType(entry.type);
        const std::size_t size = (value.size() + unit - 1) / unit * unit;
        putNumber(std::span(record), 4, static_cast<std::uint32_t>(size / unit), structure_.order);
        if (entry.isInline() || size <= 4) {
            std::ranges::fill(std::span(record).subspan(8), std::byte{0});
            std::ranges::copy(value, record.begin() + 8);
            return;
        }
        std::ranges::fill(bytes().subspan(entry.valueAt, entry.size), std::byte{0});
        std::ranges::copy(value, result_.begin() + std::ptrdiff_t(entry.valueAt));
        values_.push_back({entry.valueAt, size});
    }

    void appendValue(std::size_t record, ByteView value) {
        constexpr std::uint16_t typeUndefined = 7;
        if (result_.size() % 2 != 0) result_.push_back(std::byte{0});
        putNumber(bytes(), record + 2, typeUndefined, structure_.order);
        putNumber(bytes(), record + 4, static_cast<std::uint32_t>(value.size()), structure_.order);
        putNumber(bytes(), record + 8, static_cast<std::uint32_t>(result_.size()), structure_.order);
        append(result_, value);
    }

    void makeUpright(Bytes& record, const Entry& entry, DirectoryKind kind) {
        const bool main = kind == DirectoryKind::page;
        const auto width = static_cast<std::uint32_t>(edit_.upright->width);
        const auto height = static_cast<std::uint32_t>(edit_.upright->height);
        if (entry.tag == tag::orientation) {
            setNumber(record, 1);
        } else if (entry.tag == (main ? tag::imageWidth : tag::pixelXDimension)) {
            setNumber(record, width);
        } else if (entry.tag == (main ? tag::imageLength : tag::pixelYDimension)) {
            setNumber(record, height);
        }
    }

    void setNumber(Bytes& record, std::uint32_t number) {
        const bool isShort = number <= 0xFFFF;
        const std::span<std::byte> target = record;
        putNumber(target, 2, isShort ? typeShort : typeLong, structure_.order);
        putNumber(target, 4, std::uint32_t{1}, structure_.order);
        putNumber(target, 8, std::uint32_t{0}, structure_.order);
        if (isShort) {
            putNumber(target, 8, static_cast<std::uint16_t>(number), structure_.order);
        } else {
            putNumber(target, 8, number, structure_.order);
        }
    }

    std::uint32_t nextPage(std::size_t index) const {
        for (std::size_t i = index + 1; i < structure_.directories.size(); ++i) {
            const Directory& other = structure_.directories[i];
            if (other.kind == DirectoryKind::page && other.parent == index && !dropped_[i]) {
                return static_cast<std::uint32_t>(other.at);
            }
        }
        return 0;
    }

    void noteGone(const Directory& directory) {
        gone_.push_back({directory.at, 2 + directory.entries.size() * entrySize});
        for (const Entry& entry : directory.entries) {
            if (entry.readable && !entry.isInline()) gone_.push_back({entry.valueAt, entry.size});
        }
    }

    /// Whether a table lies upon anything else, or what must go upon a table or a picture.
    bool tangled() const {
        std::vector<std::pair<Range, bool>> all;
        for (const Range& table : tables_) all.emplace_back(table, true);
        for (const auto* list : {&pictures_, &values_, &gone_}) {
            for (const Range& range : *list) {
                if (range.size > 0) all.emplace_back(range, false);
            }
        }
        std::ranges::sort(all, {}, [](const auto& item) { return item.first.at; });
        std::size_t end = 0;
        std::size_t tableEnd = 0;
        for (const auto& [range, isTable] : all) {
            if (range.at < tableEnd || (isTable && range.at < end)) return true;
            end = std::max(end, range.end());
            if (isTable) tableEnd = std::max(tableEnd, range.end());
        }
        const std::vector<Range> pictures = merged(pictures_);
        return std::ranges::any_of(gone_, [&](const Range& gone) {
            const auto after = std::ranges::upper_bound(pictures, gone.at, {}, &Range::end);
            return after != pictures.end() && after->overlaps(gone);
        });
    }

    void clearTheRest() {
        std::vector<Range> kept = tables_;
        kept.insert(kept.end(), pictures_.begin(), pictures_.end());
        kept.insert(kept.end(), values_.begin(), values_.end());
        std::size_t end = 0;
        for (const Range& range : merged(std::move(kept))) {
            if (range.at > end) std::ranges::fill(bytes().subspan(end, range.at - end), std::byte{0});
            end = std::max(end, range.end());
        }
        for (const Range& range : gone_)
            std::ranges::fill(bytes().subspan(range.at, range.size), std::byte{0});
        result_.resize(end);
    }

    Structure structure_;
    Edit edit_;
    Bytes result_;
    std::vector<bool> dropped_;
    std::vector<Range> tables_;
    std::vector<Range> values_;
    std::vector<Range> pictures_;
    std::vector<Range> gone_;
    /// Where the record lies in the result, and the value that found no room in the old place.
    std::vector<std::pair<std::size_t, Bytes>> longerValues_;
};

}  // namespace

std::optional<Bytes> edited(ByteView block, const Edit& edit) {
    auto structure = parsed(block);
    if (!structure) return std::nullopt;
    return Editor(std::move(*structure), edit).run();
}

}  // namespace tamble::tiff
