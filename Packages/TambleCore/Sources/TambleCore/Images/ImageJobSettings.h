#pragma once

#include <TambleCore/Images/ImageFormat.h>
#include <TambleCore/Images/ImageTool.h>
#include <TambleCore/Support/Json/JsonCoding.h>
#include <TambleCore/Support/Settings/SettingsSchema.h>

namespace tamble {

namespace image_output {
/// Write the given format.
struct Convert {
    static constexpr std::string_view caseName = "convert";
    ImageFormat value = ImageFormat::webp;
    friend bool operator==(const Convert&, const Convert&) = default;
};
BOOST_DESCRIBE_STRUCT(Convert, (), (value))
/// Write the input's own format.
struct KeepFormat {
    static constexpr std::string_view caseName = "keepFormat";
    friend bool operator==(const KeepFormat&, const KeepFormat&) = default;
};
BOOST_DESCRIBE_STRUCT(KeepFormat, (), ())
}  // namespace image_output

/// What the user chose for a job of any image tool.
struct ImageJobSettings {
    using Output = std::variant<image_output::Convert, image_output::KeepFormat>;
    enum class Quality { smaller, balanced, best };
    BOOST_DESCRIBE_NESTED_ENUM(Quality, smaller, balanced, best)
    enum class Rotation { none, right, left, upsideDown, flipHorizontal, flipVertical };
    BOOST_DESCRIBE_NESTED_ENUM(Rotation, none, right, left, upsideDown, flipHorizontal, flipVertical)

    Output output = image_output::KeepFormat{};
    Quality quality = Quality::balanced;
    /// Longest side in pixels; absent means no resizing.
    std::optional<int> maxPixelSize = {};
    Rotation rotation = Rotation::none;
    /// Strip where the photo was taken, keep the rest.
    bool removeLocation = false;
    /// Strip every hidden detail.
    bool removeAllMetadata = false;
    /// Cut out the subject; the output has a see-through background.
    bool removeBackground = false;
    bool skipIfAlreadyInFormat = false;
    /// When only metadata changes, edit it without re-saving the picture.
    bool preferLosslessMetadataEdit = false;
    /// Throw away a result that is not smaller than the original.
    bool skipIfNotSmaller = false;

    friend bool operator==(const ImageJobSettings&, const ImageJobSettings&) = default;

    /// What each tool starts from.
    static ImageJobSettings defaults(ImageTool tool);
};
BOOST_DESCRIBE_STRUCT(ImageJobSettings, (),
                      (output, quality, maxPixelSize, rotation, removeLocation, removeAllMetadata,
                       removeBackground, skipIfAlreadyInFormat, preferLosslessMetadataEdit, skipIfNotSmaller))

/// The lossy encoders' compression factor, 0…1.
double compressionFactor(ImageJobSettings::Quality quality);

/// Whether the settings ask for any change of the picture beyond its format.
bool changesMoreThanFormat(const ImageJobSettings& settings);

/// Whether metadata is to be removed and nothing else asked of a picture that keeps its format.
bool changesOnlyMetadata(const ImageJobSettings& settings);

SettingsSchema imageSettingsSchema();

}  // namespace tamble
