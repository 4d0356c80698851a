#include <TambleCore/Platform/ContentType.h>
#include <TambleCore/Support/Text.h>

#include <array>
#include <cstdint>
#include <string>

namespace tamble {
namespace {

using namespace std::string_view_literals;

struct Signature {
    std::size_t offset;
    std::string_view bytes;
    std::string_view identifier;
};

/// Longer signatures stand before the shorter ones that they begin with. The values are those of the formats'
/// own specifications.
constexpr auto signatures = std::to_array<Signature>({
    {0, "\xFF\xD8\xFF"sv, "public.jpeg"},
    {0, "\x89PNG\r\n\x1A\n"sv, "public.png"},
    {0, "GIF87a"sv, "com.compuserve.gif"},
    {0, "GIF89a"sv, "com.compuserve.gif"},
    {8, "CR\x02\x00"sv, "com.canon.cr2-raw-image"},
    {6, "HEAPCCDR"sv, "com.canon.crw-raw-image"},
    {0, "FUJIFILMCCD-RAW"sv, "com.fuji.raw-image"},
    {0, "IIRO"sv, "com.olympus.raw-image"},
    {0, "IIRS"sv, "com.olympus.raw-image"},
    {0, "MMOR"sv, "com.olympus.raw-image"},
    {0, "IIU\0"sv, "com.panasonic.rw2-raw-image"},
    {0, "\0MRM"sv, "com.konicaminolta.raw-image"},
    {0, "FOVb"sv, "com.sigma.raw-image"},
    {0, "II*\0"sv, "public.tiff"},
    {0, "MM\0*"sv, "public.tiff"},
    {0, "II+\0"sv, "public.tiff"},
    {0, "MM\0+"sv, "public.tiff"},
    {0, "\0\0\0\x0CJXL \r\n\x87\n"sv, "public.jpeg-xl"},
    {0, "\xFF\x0A"sv, "public.jpeg-xl"},
    {0, "\0\0\0\x0CjP  \r\n\x87\n"sv, "public.jpeg-2000"},
    {0, "\xFF\x4F\xFF\x51"sv, "public.jpeg-2000"},
    {0, "icns"sv, "com.apple.icns"},
    {0, "8BPS"sv, "com.adobe.photoshop-image"},
    {0, "\x76\x2F\x31\x01"sv, "com.ilm.openexr-image"},
    {0, "#?RADIANCE"sv, "public.radiance"},
    {0, "%PDF-"sv, "com.adobe.pdf"},
    {0, "{\\rtf"sv, "public.rtf"},
    {30, "mimetypeapplication/vnd.oasis.opendocument.text"sv, "org.oasis-open.opendocument.text"},
    {0, "WEBVTT"sv, "org.w3.webvtt"},
    {0, "fLaC"sv, "org.xiph.flac"},
    {0, "ID3"sv, "public.mp3"},
    {0, "caff"sv, "com.apple.coreaudio-format"},
    {0, "#!AMR"sv, "org.3gpp.adaptive-multi-rate-audio"},
    {0, "wvpk"sv, "com.wavpack.wv"},
    {0, "MAC "sv, "com.monkeysaudio.ape"},
    {0, "\x30\x26\xB2\x75\x8E\x66\xCF\x11"sv, "com.microsoft.advanced-systems-format"},
    {0, "FLV\x01"sv, "com.adobe.flash.video"},
    {0, "\0\0\x01\xBA"sv, "public.mpeg"},
    {0, "\0\0\x01\xB3"sv, "public.mpeg"},
});

struct Brand {
    std::string_view code;
    std::string_view identifier;
};

/// Brands of the ISO base media file format (ISO/IEC 14496-12).
constexpr auto brands = std::to_array<Brand>({
    {"avif", "public.avif"},
    {"avis", "public.avis"},
    {"heic", "public.heic"},
    {"heix", "public.heic"},
    {"heim", "public.heic"},
    {"heis", "public.heic"},
    {"hevc", "public.heics"},
    {"hevx", "public.heics"},
    {"crx ", "com.canon.cr3-raw-image"},
    {"qt  ", "com.apple.quicktime-movie"},
    {"M4A ", "com.apple.m4a-audio"},
    {"M4B ", "com.apple.protected-mpeg-4-audio-b"},
    {"M4V ", "com.apple.m4v-video"},
    {"3gp4", "public.3gpp"},
    {"3gp5", "public.3gpp"},
    {"3gp6", "public.3gpp"},
    {"3g2a", "public.3gpp2"},
});

std::string_view at(std::string_view content, std::size_t offset, std::size_t length) {
    return content.size() < offset + length ? std::string_view() : content.substr(offset, length);
}

std::string_view identifierOfBrand(std::string_view code) {
    for (const auto& brand : brands) {
        if (brand.code == code) return brand.identifier;
    }
    return "";
}

std::string_view identifierOfBaseMedia(std::string_view content) {
    if (at(content, 4, 4) != "ftyp") return "";
    if (const auto identifier = identifierOfBrand(at(content, 8, 4)); !identifier.empty()) return identifier;
    // A general main brand: the compatible ones, up to the end of the box, tell more.
    std::size_t boxSize = 0;
    for (const char c : content.substr(0, 4)) boxSize = boxSize << 8U | static_cast<std::uint8_t>(c);
    for (std::size_t offset = 16; offset + 4 <= std::min(boxSize, content.size()); offset += 4) {
        const auto identifier = identifierOfBrand(content.substr(offset, 4));
        if (!identifier.empty()) return identifier;
    }
    const auto brand = at(content, 8, 4);
    return brand == "mif1" || brand == "msf1" ? "public.heif-standard" : "public.mpeg-4";
}

std::string_view identifierOfChunks(std::string_view content) {
    const auto form = at(content, 8, 4);
    if (content.starts_with("RIFF") || content.starts_with("RF64")) {
        if (form == "WEBP") return "org.webmproject.webp";
        if (form == "WAVE") return "com.microsoft.waveform-audio";
        if (form == "AVI ") return "public.avi";
    }
    if (content.starts_with("FORM")) {
        if (form == "AIFF") return "public.aiff-audio";
        if (form == "AIFC") return "public.aifc-audio";
    }
    return "";
}

std::string_view identifierOfStream(std::string_view content) {
    if (content.starts_with("OggS")) {
        // The first packet follows a page header of 27 bytes and one segment length.
        const auto packet = content.substr(std::min<std::size_t>(28, content.size()));
        if (packet.starts_with("OpusHead")) return "org.xiph.opus";
        if (packet.starts_with("\x80theora")) return "org.xiph.ogv";
        if (packet.starts_with("Speex")) return "org.xiph.speex";
        return "org.xiph.ogg-audio";
    }
    if (content.starts_with("\x1A\x45\xDF\xA3")) {
        return content.find("webm") != std::string_view::npos ? "org.webmproject.webm" : "org.matroska.mkv";
    }
    // Transport streams have a 0x47 at the start of every packet of 188 bytes.
    if (content.size() > 376 && content[0] == 0x47 && content[188] == 0x47 && content[376] == 0x47) {
        return "public.mpeg-2-transport-stream";
    }
    if (content.size() > 2 && content[0] == '\xFF') {
        const auto second = static_cast<std::uint8_t>(content[1]);
        if ((second & 0xF6U) == 0xF0U) return "public.aac-audio";  // layer bits 00
        if ((second & 0xE6U) == 0xE2U) return "public.mp3";        // layer III
    }
    return "";
}

std::string_view identifierOfBitmap(std::string_view content) {
    // Two letters are not enough to tell a bitmap: its reserved bytes are zero and its header has a known
    // length.
    if (content.starts_with("BM") && at(content, 6, 4) == "\0\0\0\0"sv && at(content, 15, 3) == "\0\0\0"sv) {
        return "com.microsoft.bmp";
    }
    const bool isIconDirectory = at(content, 5, 1) == "\0"sv && at(content, 9, 1) == "\0"sv;
    if (content.starts_with("\0\0\x01\0"sv) && isIconDirectory) return "com.microsoft.ico";
    if (content.starts_with("\0\0\x02\0"sv) && isIconDirectory) return "com.microsoft.cur";
    return "";
}

std::string_view identifierOfMarkup(std::string_view content) {
    if (content.starts_with("\xEF\xBB\xBF")) content.remove_prefix(3);
    if (content.starts_with("WEBVTT")) return "org.w3.webvtt";
    const std::string text = lowercased(trimmed(content));
    if (!text.starts_with('<')) return "";
    if (text.starts_with("<!doctype html") || text.starts_with("<html")) return "public.html";
    if (text.starts_with("<svg") || text.find("<svg") != std::string::npos) return "public.svg-image";
    if (text.starts_with("<?xml"))
        return text.find("<html") != std::string::npos ? "public.xhtml" : "public.xml";
    return "";
}

}  // namespace

std::optional<ContentType> ContentType::ofContent(std::string_view firstBytes) {
    for (const auto& signature : signatures) {
        if (at(firstBytes, signature.offset, signature.bytes.size()) == signature.bytes) {
            return withIdentifier(signature.identifier);
        }
    }
    for (const auto recognise : {identifierOfBaseMedia, identifierOfChunks, identifierOfBitmap,
                                 identifierOfStream, identifierOfMarkup}) {
        if (const auto identifier = recognise(firstBytes); !identifier.empty())
            return withIdentifier(identifier);
    }
    return std::nullopt;
}

}  // namespace tamble
