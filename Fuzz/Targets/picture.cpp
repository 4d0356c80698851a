// A picture of any kind through the converter, to every format. Three bytes in front choose format and
// settings.
#include <TambleCore/Images/ImageConverter.h>
#include <TambleCore/Images/ImageProcessor.h>
#include <TambleCore/Images/Metadata/Metadata.h>

#include <array>
#include <fstream>

#include "Property.h"
#include <unistd.h>

namespace {

using namespace tamble;

/// The coding of HEIC and AVIF takes a hundred times as long and is not ours, so it comes up rarely.
ImageJobSettings::Output outputFor(std::uint8_t choice) {
    constexpr std::array formats{ImageFormat::webp, ImageFormat::jpeg, ImageFormat::png, ImageFormat::tiff,
                                 ImageFormat::gif};
    if (choice >= 254) return image_output::Convert{choice == 255 ? ImageFormat::heic : ImageFormat::avif};
    const std::size_t index = choice % (formats.size() + 2);
    if (index >= formats.size()) return image_output::KeepFormat{};
    return image_output::Convert{formats[index]};
}

ImageJobSettings settingsFrom(fuzz::Input& input) {
    const std::uint8_t output = fuzz::takeByte(input);
    const std::uint8_t look = fuzz::takeByte(input);
    const std::uint8_t flags = fuzz::takeByte(input);
    ImageJobSettings settings;
    settings.output = outputFor(output);
    settings.quality = allCases<ImageJobSettings::Quality>()[look % 3U];
    settings.rotation = allCases<ImageJobSettings::Rotation>()[look / 3U % 6U];
    if ((look / 18U) % 2U == 1) settings.maxPixelSize = 1 + look % 40;
    settings.removeLocation = (flags & 1U) != 0;
    settings.removeAllMetadata = (flags & 2U) != 0;
    settings.preferLosslessMetadataEdit = (flags & 4U) != 0;
    settings.skipIfNotSmaller = (flags & 8U) != 0;
    return settings;
}

class TemporaryPicture {
  public:
    TemporaryPicture() {
        std::error_code noSharedMemory;
        const std::filesystem::path shared = "/dev/shm";
        const bool isThere = std::filesystem::is_directory(shared, noSharedMemory);
        path_ = (isThere ? shared : std::filesystem::temp_directory_path()) /
                ("tamble-fuzz-" + std::to_string(::getpid()));
    }
    ~TemporaryPicture() { std::remove(path_.c_str()); }
    TemporaryPicture(const TemporaryPicture&) = delete;
    TemporaryPicture& operator=(const TemporaryPicture&) = delete;

    const std::filesystem::path& holding(fuzz::Input content) const {
        std::ofstream(path_, std::ios::binary | std::ios::trunc)
            .write(reinterpret_cast<const char*>(content.data()),
                   static_cast<std::streamsize>(content.size()));
        return path_;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryPicture file;
    fuzz::Input input(data, size);
    const ImageJobSettings settings = settingsFrom(input);
    const auto* convert = std::get_if<image_output::Convert>(&settings.output);
    const auto format = convert ? std::optional(convert->value) : std::nullopt;
    const auto& path = file.holding(input);
    try {
        const auto result = ImageConverter().encodedData(path, settings, format);
        fuzz::require(!result.empty(), "success leaves a picture");
        if (!format) return 0;
        const auto traces = remainingTraces(result, *format, metadataRemoval(settings));
        fuzz::require(traces.empty(), "what should be gone is gone");
    } catch (const ConversionError& error) {
        fuzz::require(error.which() != ConversionError::Case::backgroundRemovalFailed, "the right sentence");
    }
    return 0;
}
