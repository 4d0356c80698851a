#pragma once

#include <TambleCore/Images/ConversionError.h>
#include <TambleCore/Images/ImageJobSettings.h>
#include <TambleCore/Images/Raster.h>
#include <TambleCore/Support/WorkContext.h>

#include <cstddef>
#include <filesystem>
#include <span>
#include <vector>

namespace tamble {

/// All pixel and metadata work of the image tools, one picture in one pass. The libraries behind it are
/// loaded on first use.
class ImageConverter {
  public:
    /// The bytes of an encoded image.
    using Memory = std::vector<std::byte>;
    /// Where an encoded image goes: a file that does not exist yet, or memory.
    using Target = std::variant<std::filesystem::path, std::reference_wrapper<Memory>>;

    /// Reads the picture at `source`, applies the settings and writes the result. Without `format` the
    /// input's own is written. Throws ConversionError; Cancelled after a stop request. Nothing partial is
    /// left at the target.
    void convert(const std::filesystem::path& source, const Target& target, const ImageJobSettings& settings,
                 std::optional<ImageFormat> format, const WorkContext& context = {}) const;

    /// The same work into memory.
    Memory encodedData(const std::filesystem::path& source, const ImageJobSettings& settings,
                       std::optional<ImageFormat> format, const WorkContext& context = {}) const;

    /// The picture at `source` as it is shown on a screen, upright, in three or four channels, its longest
    /// side at most `maxPixelSize` and never enlarged; of several pictures the first. Throws as convert()
    /// does.
    Raster picture(const std::filesystem::path& source, int maxPixelSize,
                   const WorkContext& context = {}) const;

    /// How a drawn picture is written.
    struct Drawn {
        ImageFormat format = ImageFormat::png;
        /// The lossy formats' compression factor, 0…1.
        double factor = 0.8;
        /// Written into the file, but for GIF, which cannot say it.
        double dotsPerInch = 72;
    };
    /// Writes a picture that was drawn rather than decoded, as a page is. Throws as convert() does.
    void encode(const Raster& picture, const Drawn& how, const Target& target,
                const WorkContext& context = {}) const;
};

/// What this machine can write.
namespace ImageCapabilities {

/// In the order of ImageFormat.
std::vector<ImageFormat> writableFormats();
bool canWrite(ImageFormat format);
/// Whether the picture library writes WebP itself. It is never asked to: libwebp writes faster and exactly as
/// told.
bool imageIOWritesWebP();

}  // namespace ImageCapabilities

}  // namespace tamble
