#pragma once

#include <TambleCore/Images/ImageJobSettings.h>

namespace tamble {

/// One of the eight ways in which a picture can lie: its sides exchanged (mirrored at the main diagonal)
/// first, then mirrored left to right, then top to bottom.
struct Turn {
    bool transposes = false;
    bool mirrorsX = false;
    bool mirrorsY = false;

    /// What brings a picture with this EXIF orientation (1…8; all else is upright) upright.
    static Turn upright(int exifOrientation);
    static Turn rotation(ImageJobSettings::Rotation rotation);

    /// This turn and then the other, as one.
    Turn then(const Turn& next) const;

    friend bool operator==(const Turn&, const Turn&) = default;
};

}  // namespace tamble
