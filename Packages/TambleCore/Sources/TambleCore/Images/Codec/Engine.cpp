#include <TambleCore/Images/Codec/Container.h>
#include <TambleCore/Images/Codec/Conversion.h>
#include <TambleCore/Images/Codec/Drawing.h>
#include <TambleCore/Images/Codec/Files.h>
#include <TambleCore/Images/Codec/PictureCount.h>
#include <TambleCore/Images/Codec/ShownPicture.h>
#include <TambleCore/Images/Codec/VipsLibrary.h>
#include <TambleCore/Images/Codec/WritableFormats.h>
#include <TambleCore/Images/ImageEngine.h>

#include <new>

namespace tamble {
namespace {

/// The format to write: the one asked for, else the input's own.
ImageFormat writtenFormat(const ImageJobSettings& settings, std::optional<ImageFormat> format,
                          Container container) {
    if (!format) format = imageFormat(container);
    if (!format) throw ConversionError(ConversionError::Case::cannotWrite, std::string(caseName(container)));
    if (settings.removeBackground && !supportsTransparency(*format)) format = ImageFormat::png;
    if (!canBeWritten(*format))
        throw ConversionError(ConversionError::Case::cannotWrite, std::string(displayName(*format)));
    return *format;
}

Container knownContainer(ByteView file, const std::filesystem::path& source) {
    const auto container = containerOf(file, source);
    if (!container) throw ConversionError(ConversionError::Case::unreadable, "Unknown kind of file");
    return *container;
}

Bytes converted(const std::filesystem::path& source, const ImageJobSettings& settings,
                std::optional<ImageFormat> format, const WorkContext& context) {
    context.throwIfStopped();
    const Bytes file = readWhole(source);
    const Container container = knownContainer(file, source);
    refuseSeveralPictures(file, container);
    return Conversion{.file = file,
                      .container = container,
                      .format = writtenFormat(settings, format, container),
                      .settings = settings,
                      .context = context}
        .result();
}

void deliver(Bytes file, const ImageConverter::Target& target) {
    if (const auto* path = std::get_if<std::filesystem::path>(&target)) {
        writeNew(*path, file);
    } else {
        std::get<std::reference_wrapper<ImageConverter::Memory>>(target).get() = std::move(file);
    }
}

class Engine : public ImageEngine {
  public:
    Engine() { startVips(); }

    void convert(const std::filesystem::path& source, const ImageConverter::Target& target,
                 const ImageJobSettings& settings, std::optional<ImageFormat> format,
                 const WorkContext& context) const override {
        try {
            deliver(converted(source, settings, format, context), target);
        } catch (const std::bad_alloc&) {
            throw ConversionError(ConversionError::Case::cannotDecode, "Not enough memory");
        }
    }
    void encode(const Raster& picture, const ImageConverter::Drawn& how, const ImageConverter::Target& target,
                const WorkContext& context) const override {
        try {
            if (!canBeWritten(how.format))
                throw ConversionError(ConversionError::Case::cannotWrite,
                                      std::string(displayName(how.format)));
            deliver(encodedDrawing(picture, how, context), target);
        } catch (const std::bad_alloc&) {
            throw ConversionError(ConversionError::Case::encodeFailed, "Not enough memory");
        }
    }
    Raster picture(const std::filesystem::path& source, int maxPixelSize,
                   const WorkContext& context) const override {
        try {
            context.throwIfStopped();
            const Bytes file = readWhole(source);
            return shownPicture(file, knownContainer(file, source), maxPixelSize, context);
        } catch (const std::bad_alloc&) {
            throw ConversionError(ConversionError::Case::cannotDecode, "Not enough memory");
        }
    }
    bool canWrite(ImageFormat format) const override { return canBeWritten(format); }
    bool imageIOWritesWebP() const override { return libraryWritesWebP(); }
};

}  // namespace
}  // namespace tamble

extern "C" [[gnu::visibility("default")]] const tamble::ImageEngine* tambleImageEngine() {
    static const tamble::Engine engine;
    return &engine;
}
