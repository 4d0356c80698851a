#include <TambleCore/Platform/ContentTypeTable.h>

#include <array>
#include <cstddef>

namespace tamble {
namespace {

constexpr auto table = std::to_array<ContentTypeFacts>({
    // What the others are kinds of.
    {"public.image", "", ""},
    {"public.camera-raw-image", "public.image", ""},
    {"public.heif-standard", "public.image", ""},
    {"public.audiovisual-content", "", ""},
    {"public.movie", "public.audiovisual-content", ""},
    {"public.audio", "public.audiovisual-content", ""},
    {"public.composite-content", "", ""},
    {"public.text", "", ""},
    {"public.archive", "", ""},
    {"com.apple.package", "", ""},

    // Pictures.
    {"public.jpeg", "public.image", "jpg jpeg jpe jfif jif"},
    {"public.png", "public.image", "png apng"},
    {"com.compuserve.gif", "public.image", "gif"},
    {"public.tiff", "public.image", "tiff tif"},
    {"org.webmproject.webp", "public.image", "webp"},
    // The container's general names hold the same coding as its own in practice.
    {"public.heic", "public.heif-standard", "heic heif hif"},
    {"public.heics", "public.heif-standard", "heics heifs"},
    {"public.avif", "public.heif-standard", "avif"},
    {"public.avis", "public.heif-standard", "avifs"},
    {"public.jpeg-xl", "public.image", "jxl"},
    {"public.jpeg-2000", "public.image", "jp2 j2k jpf jpx j2c jpc jpt"},
    {"com.microsoft.bmp", "public.image", "bmp dib"},
    {"com.microsoft.ico", "public.image", "ico"},
    {"com.microsoft.cur", "public.image", "cur"},
    {"com.apple.icns", "public.image", "icns"},
    {"public.svg-image", "public.image", "svg svgz"},
    {"com.adobe.photoshop-image", "public.image", "psd psb"},
    {"com.ilm.openexr-image", "public.image", "exr"},
    {"public.radiance", "public.image", "hdr"},
    {"public.pbm", "public.image", "pnm pbm pgm ppm pfm pam"},
    {"com.truevision.tga-image", "public.image", "tga"},
    {"com.microsoft.dds", "public.image", "dds"},

    // Pictures straight from a camera's sensor.
    {"com.adobe.raw-image", "public.camera-raw-image", "dng"},
    {"com.canon.cr2-raw-image", "public.camera-raw-image", "cr2"},
    {"com.canon.cr3-raw-image", "public.camera-raw-image", "cr3"},
    {"com.canon.crw-raw-image", "public.camera-raw-image", "crw"},
    {"com.nikon.raw-image", "public.camera-raw-image", "nef"},
    {"com.nikon.nrw-raw-image", "public.camera-raw-image", "nrw"},
    {"com.sony.arw-raw-image", "public.camera-raw-image", "arw"},
    {"com.sony.sr2-raw-image", "public.camera-raw-image", "sr2"},
    {"com.sony.raw-image", "public.camera-raw-image", "srf"},
    {"com.fuji.raw-image", "public.camera-raw-image", "raf"},
    {"com.olympus.raw-image", "public.camera-raw-image", "orf ori"},
    {"com.panasonic.rw2-raw-image", "public.camera-raw-image", "rw2"},
    {"com.panasonic.raw-image", "public.camera-raw-image", "raw"},
    {"com.pentax.raw-image", "public.camera-raw-image", "pef"},
    {"com.samsung.raw-image", "public.camera-raw-image", "srw"},
    {"com.leica.rwl-raw-image", "public.camera-raw-image", "rwl"},
    {"com.leafamerica.raw-image", "public.camera-raw-image", "mos"},
    {"com.hasselblad.3fr-raw-image", "public.camera-raw-image", "3fr"},
    {"com.hasselblad.fff-raw-image", "public.camera-raw-image", "fff"},
    {"com.phaseone.raw-image", "public.camera-raw-image", "iiq"},
    {"com.mamiya.raw-image", "public.camera-raw-image", "mef"},
    {"com.kodak.raw-image", "public.camera-raw-image", "dcr kdc k25"},
    {"com.epson.raw-image", "public.camera-raw-image", "erf"},
    {"com.konicaminolta.raw-image", "public.camera-raw-image", "mrw"},
    {"com.sigma.raw-image", "public.camera-raw-image", "x3f"},

    // Videos.
    {"public.mpeg-4", "public.movie", "mp4 mpg4 mp4v"},
    {"com.apple.quicktime-movie", "public.movie", "mov qt"},
    {"com.apple.m4v-video", "public.movie", "m4v"},
    {"org.webmproject.webm", "public.movie", "webm"},
    {"org.matroska.mkv", "public.movie", "mkv mk3d"},
    {"public.avi", "public.movie", "avi divx"},
    {"public.3gpp", "public.movie", "3gp 3gpp"},
    {"public.3gpp2", "public.movie", "3g2 3gp2"},
    {"public.mpeg", "public.movie", "mpg mpeg mpe m1v"},
    {"public.mpeg-2-video", "public.movie", "m2v mpv"},
    {"public.mpeg-2-transport-stream", "public.movie", "ts mts m2ts m2t"},
    {"public.dv-movie", "public.movie", "dv"},
    {"com.microsoft.windows-media-wmv", "public.movie", "wmv"},
    {"com.microsoft.advanced-systems-format", "public.movie", "asf"},
    {"com.adobe.flash.video", "public.movie", "flv f4v"},
    {"org.xiph.ogv", "public.movie", "ogv ogm"},
    {"com.dvd.vob", "public.movie", "vob"},
    {"org.smpte.mxf", "public.movie", "mxf"},
    {"com.real.realmedia", "public.movie", "rm rmvb"},

    // Sound.
    {"public.mp3", "public.audio", "mp3"},
    {"public.mp2", "public.audio", "mp2 mpa"},
    {"public.mpeg-4-audio", "public.audio", ""},
    {"com.apple.m4a-audio", "public.mpeg-4-audio", "m4a m4r"},
    {"com.apple.protected-mpeg-4-audio-b", "public.mpeg-4-audio", "m4b"},
    {"public.aac-audio", "public.audio", "aac adts"},
    {"com.microsoft.waveform-audio", "public.audio", "wav wave bwf rf64"},
    {"com.sony.wave64", "public.audio", "w64"},
    {"org.xiph.flac", "public.audio", "flac"},
    {"public.aiff-audio", "public.audio", "aiff aif"},
    {"public.aifc-audio", "public.aiff-audio", "aifc"},
    {"com.apple.coreaudio-format", "public.audio", "caf"},
    {"org.xiph.opus", "public.audio", "opus"},
    {"org.xiph.ogg-audio", "public.audio", "ogg oga"},
    {"org.xiph.speex", "public.audio", "spx"},
    {"org.matroska.mka", "public.audio", "mka"},
    {"org.webmproject.weba", "public.audio", "weba"},
    {"com.microsoft.windows-media-wma", "public.audio", "wma"},
    {"public.ac3-audio", "public.audio", "ac3"},
    {"public.enhanced-ac3-audio", "public.audio", "eac3 ec3"},
    {"com.dts.audio", "public.audio", "dts"},
    {"org.3gpp.adaptive-multi-rate-audio", "public.audio", "amr awb"},
    {"public.au-audio", "public.audio", "au snd"},
    {"com.monkeysaudio.ape", "public.audio", "ape"},
    {"com.wavpack.wv", "public.audio", "wv"},
    {"com.trueaudio.tta", "public.audio", "tta"},

    // Documents and texts.
    {"com.adobe.pdf", "public.composite-content", "pdf"},
    {"com.microsoft.word.doc", "public.composite-content", "doc dot"},
    {"org.openxmlformats.wordprocessingml.document", "public.composite-content", "docx docm"},
    {"org.oasis-open.opendocument.text", "public.composite-content", "odt ott"},
    {"public.rtf", "public.text", "rtf"},
    {"public.html", "public.text", "html htm shtml"},
    {"public.xhtml", "public.html", "xhtml xht"},
    {"public.plain-text", "public.text", "txt text log asc"},
    {"public.delimited-values-text", "public.plain-text", ""},
    {"public.comma-separated-values-text", "public.delimited-values-text", "csv"},
    {"public.tab-separated-values-text", "public.delimited-values-text", "tsv tab"},
    {"net.daringfireball.markdown", "public.plain-text", "md markdown mdown mkd"},
    {"org.python.restructuredtext", "public.plain-text", "rst"},
    {"public.subtitles", "public.text", ""},
    {"org.matroska.subrip", "public.subtitles", "srt"},
    {"org.w3.webvtt", "public.subtitles", "vtt"},
    {"public.json", "public.text", "json"},
    {"public.xml", "public.text", "xml"},
    {"public.zip-archive", "public.archive", "zip"},

    // Folders that are shown as one file.
    {"com.apple.application-bundle", "com.apple.package", "app"},
    {"com.apple.bundle", "com.apple.package", "bundle"},
    {"com.apple.framework", "com.apple.package", "framework"},
    {"com.apple.plugin", "com.apple.package", "plugin appex xpc kext saver prefpane qlgenerator mdimporter"},
    {"com.apple.photos.library", "com.apple.package",
     "photoslibrary photolibrary migratedphotolibrary aplibrary"},
    {"com.apple.media-library", "com.apple.package",
     "imovielibrary fcpbundle musiclibrary tvlibrary theater"},
    {"com.apple.rtfd", "com.apple.package", "rtfd"},
    {"com.apple.iwork.document", "com.apple.package", "pages numbers key"},
    {"com.apple.music-project", "com.apple.package", "band logicx"},
    {"com.apple.developer-project", "com.apple.package",
     "xcodeproj xcworkspace xcarchive playground dsym scptd"},
    {"com.apple.automator-workflow", "com.apple.package", "workflow"},
    {"com.apple.disk-image-sparse", "com.apple.package", "sparsebundle"},
    {"com.apple.installer-package", "com.apple.package", "pkg mpkg"},
    {"com.apple.webkit-download", "com.apple.package", "download"},
});

/// Resolved while compiling, so that a line naming a type that is not in the table does not build.
constexpr auto parents = [] {
    std::array<const ContentTypeFacts*, table.size()> result{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].conformsTo.empty()) continue;
        std::size_t parent = 0;
        while (table.at(parent).identifier != table[i].conformsTo) ++parent;
        result[i] = &table[parent];
    }
    return result;
}();

}  // namespace

std::span<const ContentTypeFacts> contentTypeTable() noexcept {
    return table;
}

const ContentTypeFacts* moreGeneral(const ContentTypeFacts& facts) noexcept {
    return parents[static_cast<std::size_t>(&facts - table.data())];
}

}  // namespace tamble
