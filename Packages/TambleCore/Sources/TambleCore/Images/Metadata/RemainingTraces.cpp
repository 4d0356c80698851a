#include <TambleCore/Images/Metadata/Metadata.h>
#include <TambleCore/Images/Metadata/TraceFinder.h>

namespace tamble {

std::vector<std::string> remainingTraces(ByteView file, ImageFormat format, MetadataRemoval removal) {
    if (removal == MetadataRemoval::nothing) return {};
    TraceFinder finder(removal);
    switch (format) {
        case ImageFormat::jpeg:
            finder.jpeg(file);
            break;
        case ImageFormat::png:
            finder.png(file);
            break;
        case ImageFormat::webp:
            finder.webp(file);
            break;
        case ImageFormat::tiff:
            finder.tiff(file);
            break;
        case ImageFormat::gif:
            finder.gif(file);
            break;
        case ImageFormat::heic:
        case ImageFormat::avif:
            finder.iso(file);
            break;
    }
    return std::move(finder).take();
}

}  // namespace tamble
