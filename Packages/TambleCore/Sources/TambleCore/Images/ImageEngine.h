#pragma once

#include <TambleCore/Images/ImageConverter.h>

namespace tamble {

/// What the image module offers the rest of the program: the seam behind which the picture libraries are
/// loaded.
class ImageEngine {
  public:
    virtual ~ImageEngine() = default;
    virtual void convert(const std::filesystem::path& source, const ImageConverter::Target& target,
                         const ImageJobSettings& settings, std::optional<ImageFormat> format,
                         const WorkContext& context) const = 0;
    virtual void encode(const Raster& picture, const ImageConverter::Drawn& how,
                        const ImageConverter::Target& target, const WorkContext& context) const = 0;
    virtual Raster picture(const std::filesystem::path& source, int maxPixelSize,
                           const WorkContext& context) const = 0;
    virtual bool canWrite(ImageFormat format) const = 0;
    virtual bool imageIOWritesWebP() const = 0;
};

/// The engine of the image module, which is loaded by the first call and stays. Throws
/// ConversionError::cannotDecode when the module cannot be loaded.
const ImageEngine& imageEngine();

/// The name under which the module exports the function that answers its engine.
inline constexpr const char* imageEngineSymbol = "tambleImageEngine";
using ImageEngineFunction = const ImageEngine* (*)();

}  // namespace tamble
