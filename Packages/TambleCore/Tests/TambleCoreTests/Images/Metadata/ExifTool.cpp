#include "ExifTool.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace tamble::test {

bool hasExifTool() {
    static const bool present = std::system("exiftool -ver >/dev/null 2>&1") == 0;
    return present;
}

std::string exifTool(const std::vector<std::string>& words) {
    std::string command = "exiftool -m";
    for (const std::string& word : words) command += " '" + word + "'";
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(::popen((command + " 2>&1").c_str(), "r"),
                                                               ::pclose);
    std::string text;
    std::array<char, 4096> part{};
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), pipe.get()))
        text.append(part.data(), size);
    return text;
}

std::string tagsOf(const std::filesystem::path& file) {
    return exifTool(
        {"-a", "-G1", "-s", "-ee", "-U", "--System:all", "--ExifTool:all", "--Composite:all", file});
}

std::vector<std::string> tagsOf(const std::vector<std::filesystem::path>& files) {
    constexpr std::string_view heading = "======== ";
    std::vector<std::string> words{
        "-a", "-G1", "-s", "-ee", "-U", "--System:all", "--ExifTool:all", "--Composite:all"};
    words.insert(words.end(), files.begin(), files.end());
    const std::string text = exifTool(words);
    std::vector<std::string> result;
    for (std::size_t at = text.find(heading); at != std::string::npos;) {
        const std::size_t next = text.find(heading, at + heading.size());
        result.push_back(text.substr(at, next == std::string::npos ? next : next - at));
        at = next;
    }
    result.resize(files.size());
    return result;
}

std::vector<std::string> photographTags() {
    return {"-q",
            "-overwrite_original",
            "-Make=Kameramann",
            "-Model=K1",
            "-DateTimeOriginal=2020:01:02 03:04:05",
            "-GPSLatitude=48.85",
            "-GPSLatitudeRef=N",
            "-GPSLongitude=2.35",
            "-GPSLongitudeRef=E",
            "-GPSAltitude=35",
            "-XMP:GPSLatitude=48.85",
            "-XMP:GPSLongitude=2.35",
            "-XMP-photoshop:City=Placeville",
            "-XMP-photoshop:Country=Placeland",
            "-XMP-iptcCore:Location=Placequarter",
            "-XMP-iptcExt:LocationShownCity=Placeville",
            "-XMP-dc:Subject=seaside",
            "-IPTC:City=Placeville",
            "-IPTC:Sub-location=Placequarter",
            "-IPTC:Country-PrimaryLocationName=Placeland",
            "-IPTC:Keywords=seaside",
            "-UserComment=remark"};
}

std::vector<std::string> placeWords() {
    return {"GPS", "48.8", "48 deg", "Place", "City", "Country", "Location"};
}

Bytes bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    const auto view = std::as_bytes(std::span(text));
    return {view.begin(), view.end()};
}

}  // namespace tamble::test
