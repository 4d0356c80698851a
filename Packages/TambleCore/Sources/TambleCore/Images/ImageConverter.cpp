#include <TambleCore/Images/ImageConverter.h>
#include <TambleCore/Images/ImageEngine.h>
#include <TambleCore/Support/Json/Described.h>
#include <TambleCore/Support/LoadedModule.h>

namespace tamble {

const ImageEngine& imageEngine() {
    static const ImageEngine* const engine = [] {
        try {
            return reinterpret_cast<ImageEngineFunction>(
                moduleSymbol("libTambleImages.so", imageEngineSymbol))();
        } catch (const std::runtime_error& error) {
            throw ConversionError(ConversionError::Case::cannotDecode, error.what());
        }
    }();
    return *engine;
}

void ImageConverter::convert(const std::filesystem::path& source, const Target& target,
                             const ImageJobSettings& settings, std::optional<ImageFormat> format,
                             const WorkContext& context) const {
    imageEngine().convert(source, target, settings, format, context);
}

ImageConverter::Memory ImageConverter::encodedData(const std::filesystem::path& source,
                                                   const ImageJobSettings& settings,
                                                   std::optional<ImageFormat> format,
                                                   const WorkContext& context) const {
    Memory data;
    convert(source, std::ref(data), settings, format, context);
    return data;
}

Raster ImageConverter::picture(const std::filesystem::path& source, int maxPixelSize,
                               const WorkContext& context) const {
    return imageEngine().picture(source, maxPixelSize, context);
}

void ImageConverter::encode(const Raster& picture, const Drawn& how, const Target& target,
                            const WorkContext& context) const {
    imageEngine().encode(picture, how, target, context);
}

namespace ImageCapabilities {

bool canWrite(ImageFormat format) {
    return imageEngine().canWrite(format);
}

std::vector<ImageFormat> writableFormats() {
    std::vector<ImageFormat> formats = allCases<ImageFormat>();
    std::erase_if(formats, [](ImageFormat format) { return !canWrite(format); });
    return formats;
}

bool imageIOWritesWebP() {
    return imageEngine().imageIOWritesWebP();
}

}  // namespace ImageCapabilities

}  // namespace tamble
