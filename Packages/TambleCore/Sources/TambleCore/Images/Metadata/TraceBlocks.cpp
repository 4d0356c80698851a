#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>
#include <TambleCore/Images/Metadata/Text/PhotoshopResources.h>
#include <TambleCore/Images/Metadata/TraceFinder.h>

#include <array>

namespace tamble {
namespace {

bool isNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
}

/// The words of places that may follow a namespace's prefix, as in "photoshop:City".
constexpr std::array<std::string_view, 17> placeNames{
    "City",          "Country",       "CountryCode", "CountryName", "Location",    "LocationCreated",
    "LocationShown", "ProvinceState", "Sublocation", "State",       "WorldRegion", "LocationName",
    "LocationId",    "shotLocation",  "SubLocation", "lat",         "long"};

bool isPlace(std::string_view name) {
    return std::ranges::find(placeNames, name) != placeNames.end() || name.starts_with("GPS") ||
           name.starts_with("Gps") || name.find("Latitude") != std::string_view::npos ||
           name.find("Longitude") != std::string_view::npos;
}

/// The first property name in the text that tells a place.
std::string_view placeAmong(std::string_view text) {
    for (std::size_t colon = text.find(':'); colon != std::string_view::npos;
         colon = text.find(':', colon + 1)) {
        if (colon == 0 || !isNameCharacter(text[colon - 1])) continue;
        std::size_t end = colon + 1;
        while (end < text.size() && isNameCharacter(text[end])) ++end;
        const std::string_view name = text.substr(colon + 1, end - colon - 1);
        // In running text a property would be followed by other things than "=", ">", "/" or white space.
        const bool isProperty =
            end < text.size() && std::string_view("=>/ \t\r\n").find(text[end]) != std::string_view::npos;
        if (isProperty && isPlace(name)) return name;
    }
    return {};
}

}  // namespace

void TraceFinder::add(std::string trace) {
    if (std::ranges::find(found_, trace) == found_.end()) found_.push_back(std::move(trace));
}

void TraceFinder::afterTheEnd(ByteView file, std::size_t end) {
    // Padding tells nothing.
    const ByteView rest = file.subspan(std::min(end, file.size()));
    if (std::ranges::any_of(rest, [](std::byte b) { return b != std::byte{0}; }))
        add("data after the picture's end");
}

void TraceFinder::properties(ByteView text) {
    addHidden("XMP");
    if (everything_) return;
    std::string_view searched = asText(text);
    std::string narrow;
    if (searched.find('\0') != std::string_view::npos) {
        std::ranges::copy_if(searched, std::back_inserter(narrow), [](char c) { return c != '\0'; });
        searched = narrow;
    }
    const std::string_view place = placeAmong(searched);
    if (!place.empty()) add("place in XMP (" + std::string(place) + ")");
}

void TraceFinder::iptc(ByteView records) {
    addHidden("IPTC");
    constexpr std::array<unsigned, 7> places{26, 27, 90, 92, 95, 100, 101};
    // A marker and a record number, wherever they stand, so that nothing hides behind a damaged length.
    for (std::size_t at = 0; at + 4 < records.size(); ++at) {
        const bool begins = records[at] == std::byte{0x1C} && records[at + 1] == std::byte{2};
        if (!begins) continue;
        const auto dataset = std::to_integer<unsigned>(records[at + 2]);
        if (std::ranges::find(places, dataset) != places.end()) add("place in IPTC");
    }
}

void TraceFinder::resources(ByteView blocks) {
    addHidden("image resource blocks");
    const auto all = photoshop::resources(blocks);
    if (!all) return add("damaged image resource blocks");
    for (const photoshop::Resource& resource : *all) {
        if (resource.id == photoshop::iptcId) iptc(resource.data);
        if (resource.id == 0x0422 || resource.id == 0x0423) exif(resource.data);
        if (resource.id == 0x0424) properties(resource.data);
    }
}

void TraceFinder::exif(ByteView block) {
    constexpr int mostStructures = 256;
    if (++structures_ > mostStructures) return add("more EXIF than any camera writes");
    const auto structure = tiff::parsed(block);
    if (!structure) return add("EXIF that cannot be read");
    for (const tiff::Directory& directory : structure->directories) {
        if (directory.kind == tiff::DirectoryKind::gps) add("GPS position in EXIF");
        for (const tiff::Entry& entry : directory.entries) {
            if (entry.tag == tiff::tag::gpsDirectory) add("GPS position in EXIF");
            if (entry.tag != tiff::tag::orientation) addHidden("EXIF");
            if (!entry.readable) continue;
            if (entry.tag == tiff::tag::xmp) properties(structure->value(entry));
            if (entry.tag == tiff::tag::iptc) iptc(structure->value(entry));
            if (entry.tag == tiff::tag::photoshop) resources(structure->value(entry));
        }
        const auto thumbnail = structure->number(directory, tiff::tag::thumbnailOffset);
        const auto length = structure->number(directory, tiff::tag::thumbnailLength);
        const auto data = thumbnail && length ? slice(block, *thumbnail, *length) : std::nullopt;
        if (data) jpeg(*data);
    }
}

}  // namespace tamble
