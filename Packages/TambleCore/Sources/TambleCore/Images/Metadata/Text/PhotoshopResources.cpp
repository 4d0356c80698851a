#include <TambleCore/Images/Metadata/Exif/Thumbnail.h>
#include <TambleCore/Images/Metadata/Text/Iptc.h>
#include <TambleCore/Images/Metadata/Text/PhotoshopResources.h>

#include <array>

namespace tamble::photoshop {
namespace {

// Numbers of resources as the format's description lists them.
constexpr std::uint16_t iptcDigestId = 0x0425;
constexpr std::array<std::uint16_t, 2> thumbnailIds{0x0409, 0x040C};
constexpr std::array<std::uint16_t, 3> copyIds{0x0422, 0x0423, 0x0424};
/// Bytes before the JPEG data in a thumbnail resource.
constexpr std::size_t thumbnailHeader = 28;

template <typename Ids>
bool isAmong(const Ids& ids, std::uint16_t id) {
    return std::ranges::find(ids, id) != ids.end();
}

std::size_t padded(std::size_t size) {
    return size + size % 2;
}

std::optional<Resource> first(ByteView blocks) {
    constexpr std::array<std::string_view, 5> signatures{"8BIM", "PHUT", "AgHg", "DCSR", "MeSa"};
    if (std::ranges::none_of(signatures, [&](std::string_view known) { return startsWith(blocks, known); })) {
        return std::nullopt;
    }
    const auto id = numberAt<std::uint16_t>(blocks, 4, ByteOrder::big);
    const auto nameLength = numberAt<std::uint8_t>(blocks, 6, ByteOrder::big);
    if (!id || !nameLength) return std::nullopt;
    const std::size_t sizeAt = 6 + padded(std::size_t{1} + *nameLength);
    const auto size = numberAt<std::uint32_t>(blocks, sizeAt, ByteOrder::big);
    const auto data = size ? slice(blocks, sizeAt + 4, *size) : std::nullopt;
    if (!data) return std::nullopt;
    // Some writers leave out the padding of the last block.
    const std::size_t end = std::min(sizeAt + 4 + padded(*size), blocks.size());
    return Resource{*id, *data, blocks.first(end)};
}

bool tellsMore(const Resource& thumbnail) {
    return thumbnail.data.size() < thumbnailHeader ||
           carriesMetadata(thumbnail.data.subspan(thumbnailHeader));
}

}  // namespace

std::optional<std::vector<Resource>> resources(ByteView blocks) {
    std::vector<Resource> result;
    while (!blocks.empty()) {
        const auto resource = first(blocks);
        if (!resource) {
            const bool onlyPadding =
                std::ranges::all_of(blocks, [](std::byte b) { return b == std::byte{0}; });
            return onlyPadding ? std::optional(std::move(result)) : std::nullopt;
        }
        result.push_back(*resource);
        blocks = blocks.subspan(resource->whole.size());
    }
    return result;
}

void appendResource(Bytes& blocks, std::uint16_t id, ByteView data) {
    append(blocks, asBytes("8BIM"));
    appendNumber(blocks, id, ByteOrder::big);
    appendNumber(blocks, std::uint16_t{0}, ByteOrder::big);  // no name
    appendNumber(blocks, static_cast<std::uint32_t>(data.size()), ByteOrder::big);
    append(blocks, data);
    if (data.size() % 2 != 0) blocks.push_back(std::byte{0});
}

std::optional<Bytes> iptcRecords(ByteView blocks) {
    const auto all = resources(blocks);
    if (!all) return std::nullopt;
    const auto found = std::ranges::find(*all, iptcId, &Resource::id);
    return found == all->end() ? std::nullopt : std::optional(copied(found->data));
}

std::optional<Bytes> withoutLocation(ByteView blocks) {
    const auto all = resources(blocks);
    if (!all) return std::nullopt;
    bool changed = false;
    Bytes result;
    for (const Resource& resource : *all) {
        if (resource.id == iptcId) {
            const Bytes records = iptc::withoutLocation(resource.data);
            changed = records.size() != resource.data.size();
            if (!records.empty()) appendResource(result, iptcId, records);
        } else if (!isAmong(copyIds, resource.id) &&
                   !(isAmong(thumbnailIds, resource.id) && tellsMore(resource)) &&
                   resource.id != iptcDigestId) {
            append(result, resource.whole);
        }
    }
    // The digest is of the records as they were.
    const auto digest = std::ranges::find(*all, iptcDigestId, &Resource::id);
    if (!changed && digest != all->end()) append(result, digest->whole);
    return result;
}

std::optional<Bytes> withoutThumbnail(ByteView blocks) {
    const auto all = resources(blocks);
    if (!all) return std::nullopt;
    Bytes result;
    for (const Resource& resource : *all) {
        if (!isAmong(thumbnailIds, resource.id)) append(result, resource.whole);
    }
    return result;
}

}  // namespace tamble::photoshop
