#include "SampleFolder.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

#include "Scenes.h"
#include <vips/vips8>

namespace tamble::samples {

namespace {

namespace fs = std::filesystem;
using vips::VImage;

/// In degrees, north and east.
struct Coordinates {
    double latitude;
    double longitude;
};

/// The value of the EXIF orientation tag: how the stored picture must be turned to stand upright.
enum class Orientation : int { upright = 1, upsideDown = 3, turnRight = 6, turnLeft = 8 };

struct Sample {
    std::string_view path;
    Scene scene;
    PictureSize size;
    Orientation orientation;
    std::string_view taken;
    std::optional<Coordinates> place;
};

constexpr std::array photographs{
    Sample{"Sunset.jpg",
           sunset,
           {3600, 2400},
           Orientation::upright,
           "2024:06:21 21:14:05",
           Coordinates{43.2590, -2.0240}},
    Sample{"Hills.jpg",
           hills,
           {2400, 1600},
           Orientation::turnRight,
           "2024:05:04 07:52:40",
           Coordinates{47.4217, 10.9854}},
    Sample{"Dunes.jpg", dunes, {1800, 2700}, Orientation::turnLeft, "2024:10:12 17:31:22", std::nullopt},
    Sample{"Waves.jpg",
           waves,
           {1920, 1280},
           Orientation::upsideDown,
           "2023:08:30 12:00:00",
           Coordinates{-33.8908, 151.2743}},
    Sample{"Trip/Night.jpg",
           night,
           {2700, 1800},
           Orientation::upright,
           "2024:01:25 22:47:59",
           Coordinates{68.3495, 18.8312}},
};

/// Turns an upright picture into the one that a camera held this way would store.
VImage asStored(const VImage& upright, Orientation orientation) {
    switch (orientation) {
        case Orientation::upright:
            return upright;
        case Orientation::upsideDown:
            return upright.rot(VIPS_ANGLE_D180);
        case Orientation::turnRight:
            return upright.rot(VIPS_ANGLE_D270);
        case Orientation::turnLeft:
            return upright.rot(VIPS_ANGLE_D90);
    }
    return upright;
}

/// Degrees, minutes and seconds as EXIF writes them.
std::string sexagesimal(double degrees) {
    const auto hundredths = std::lround(std::abs(degrees) * 360000);
    return std::to_string(hundredths / 360000) + "/1 " + std::to_string(hundredths / 6000 % 60) + "/1 " +
           std::to_string(hundredths % 6000) + "/100";
}

void describe(VImage& image, const Sample& sample) {
    const std::string taken{sample.taken};
    image.set(VIPS_META_ORIENTATION, static_cast<int>(sample.orientation));
    image.set("exif-ifd0-Make", "Tamble");
    image.set("exif-ifd0-Model", "Sample Camera");
    image.set("exif-ifd0-DateTime", taken.c_str());
    image.set("exif-ifd2-DateTimeOriginal", taken.c_str());
    image.set("exif-ifd2-FNumber", "28/10");
    image.set("exif-ifd2-ExposureTime", "1/250");
    image.set("exif-ifd2-BodySerialNumber", "0123456789");
    if (!sample.place) return;
    const auto [latitude, longitude] = *sample.place;
    image.set("exif-ifd3-GPSLatitudeRef", latitude < 0 ? "S" : "N");
    image.set("exif-ifd3-GPSLatitude", sexagesimal(latitude).c_str());
    image.set("exif-ifd3-GPSLongitudeRef", longitude < 0 ? "W" : "E");
    image.set("exif-ifd3-GPSLongitude", sexagesimal(longitude).c_str());
}

VImage drawn(Scene scene, PictureSize size, Bands bands) {
    auto pixels = painted(scene, size, bands);
    return VImage::new_from_memory(pixels.data(), pixels.size(), size.width, size.height,
                                   static_cast<int>(bands), VIPS_FORMAT_UCHAR)
        .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
        .copy_memory();
}

void writeAll(const fs::path& folder) {
    for (const Sample& sample : photographs) {
        const auto path = folder / sample.path;
        fs::create_directories(path.parent_path());
        VImage image = asStored(drawn(sample.scene, sample.size, Bands::rgb), sample.orientation).copy();
        describe(image, sample);
        image.jpegsave(path.c_str(), VImage::option()->set("Q", 92));
    }
    drawn(balloon, {1600, 1600}, Bands::rgba).pngsave((folder / "Balloon.png").c_str());
}

}  // namespace

void makeSampleFolder(const fs::path& folder) {
    if (VIPS_INIT("tamble-samples") != 0) throw vips::VError();
    const auto unfinished = fs::path(folder).concat(".unfinished");
    fs::remove_all(unfinished);
    fs::create_directories(unfinished);
    writeAll(unfinished);
    fs::rename(unfinished, folder);
}

}  // namespace tamble::samples
