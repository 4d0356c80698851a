#include <TambleCore/Images/ImageJobSettings.h>

#include <array>

namespace tamble {
namespace {

/// The longest side that any format here can have (TIFF, PNG: more than a picture library will decode).
constexpr std::int64_t largestSide = 100'000;

constexpr std::array<SettingHint, 10> hints{{
    {.field = "output", .help = "The format of the new files", .shortFlag = "to", .shortCase = "convert"},
    {.field = "quality", .help = "How much smaller the files get"},
    {.field = "maxPixelSize",
     .help = "Longest side in pixels. Photos are never made bigger than they already are.",
     .range = std::pair<std::int64_t, std::int64_t>(1, largestSide),
     .shortFlag = "size"},
    {.field = "rotation", .help = "Turn or mirror"},
    {.field = "removeLocation", .help = "Where the photo was taken. Camera and date stay."},
    {.field = "removeAllMetadata", .help = "Location, camera, dates and other details. Photos stay upright."},
    {.field = "removeBackground", .help = "Cut out the subject"},
    {.field = "skipIfAlreadyInFormat", .help = "Leave photos alone that already have the format"},
    {.field = "preferLosslessMetadataEdit",
     .help = "When possible the picture itself isn't re-saved, so quality stays exactly the same."},
    {.field = "skipIfNotSmaller", .help = "Leave photos alone that would not get smaller"},
}};

}  // namespace

ImageJobSettings ImageJobSettings::defaults(ImageTool tool) {
    ImageJobSettings settings;
    switch (tool) {
        case ImageTool::convert:
            settings.output = image_output::Convert{ImageFormat::webp};
            settings.skipIfAlreadyInFormat = true;
            break;
        case ImageTool::compress:
            settings.skipIfNotSmaller = true;
            break;
        case ImageTool::resize:
            settings.maxPixelSize = 1920;
            break;
        case ImageTool::rotate:
            settings.rotation = Rotation::right;
            settings.quality = Quality::best;
            break;
        case ImageTool::removeMetadata:
            settings.removeLocation = true;
            settings.preferLosslessMetadataEdit = true;
            settings.quality = Quality::best;
            break;
        case ImageTool::removeBackground:
            settings.output = image_output::Convert{ImageFormat::png};
            settings.removeBackground = true;
            break;
    }
    return settings;
}

double compressionFactor(ImageJobSettings::Quality quality) {
    switch (quality) {
        case ImageJobSettings::Quality::smaller:
            return 0.6;
        case ImageJobSettings::Quality::balanced:
            return 0.8;
        case ImageJobSettings::Quality::best:
            break;
    }
    return 0.94;
}

bool changesMoreThanFormat(const ImageJobSettings& settings) {
    return settings.maxPixelSize || settings.rotation != ImageJobSettings::Rotation::none ||
           settings.removeLocation || settings.removeAllMetadata || settings.removeBackground;
}

bool changesOnlyMetadata(const ImageJobSettings& settings) {
    return (settings.removeLocation || settings.removeAllMetadata) && !settings.maxPixelSize &&
           settings.rotation == ImageJobSettings::Rotation::none && !settings.removeBackground;
}

SettingsSchema imageSettingsSchema() {
    return settingsSchema<ImageJobSettings>(hints);
}

}  // namespace tamble
