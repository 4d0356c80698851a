#include "TestPictures.h"

#include <TambleCore/Images/Codec/VipsLibrary.h>

#include <cstdlib>
#include <fstream>

namespace tamble::test {

using vips::VImage;

PictureFolder::PictureFolder() {
    startVips();
    std::string name = (std::filesystem::temp_directory_path() / "pictures-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("No temporary folder");
    path_ = name;
}

PictureFolder::~PictureFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path PictureFolder::file(std::string_view name, std::span<const std::byte> content) const {
    std::ofstream stream(*this / name, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
    return *this / name;
}

std::filesystem::path PictureFolder::picture(std::string_view name, const VImage& image) const {
    image.write_to_file((*this / name).c_str());
    return *this / name.substr(0, name.find('['));
}

namespace {

VImage field(int width, int height, std::vector<double> colour) {
    return (VImage::black(width, height) + std::move(colour)).cast(VIPS_FORMAT_UCHAR);
}

VImage inRGB(const VImage& image) {
    return image.copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
}

}  // namespace

VImage fourFields(int width, int height) {
    const int left = width / 2;
    const int top = height / 2;
    const VImage upper = field(left, top, {220, 30, 30})
                             .join(field(width - left, top, {30, 200, 30}), VIPS_DIRECTION_HORIZONTAL);
    const VImage lower =
        field(left, height - top, {30, 30, 220})
            .join(field(width - left, height - top, {240, 240, 240}), VIPS_DIRECTION_HORIZONTAL);
    return inRGB(upper.join(lower, VIPS_DIRECTION_VERTICAL));
}

VImage photograph(int width, int height) {
    const VImage place = VImage::xyz(width, height);
    const VImage waves = ((place[0] * 0.9).sin() + (place[1] * 0.7).cos()) * 40 + 110;
    const VImage slope = place[0] * (200.0 / width) + 20;
    const VImage noise = VImage::gaussnoise(
        width, height, VImage::option()->set("sigma", 4.0)->set("mean", 0.0)->set("seed", 7));
    return inRGB((waves.bandjoin(slope).bandjoin(place[1] * (180.0 / height) + 30) + noise)
                     .cast(VIPS_FORMAT_UCHAR))
        .copy_memory();
}

VImage withOrientation(const VImage& image, int orientation) {
    VImage copy = image.copy();
    copy.set(VIPS_META_ORIENTATION, orientation);
    return copy;
}

VImage storedAs(const VImage& upright, int orientation) {
    const std::vector<VImage> all{upright,
                                  upright.fliphor(),
                                  upright.rot180(),
                                  upright.flipver(),
                                  upright.rot90().fliphor(),
                                  upright.rot270(),
                                  upright.rot270().fliphor(),
                                  upright.rot90()};
    return withOrientation(all[static_cast<std::size_t>(orientation - 1)].copy_memory(), orientation);
}

ImageConverter::Memory converted(const std::filesystem::path& source, ImageFormat format,
                                 const ImageJobSettings& settings) {
    return ImageConverter{}.encodedData(source, settings, format);
}

VImage shown(const ImageConverter::Memory& bytes) {
    return VImage::new_from_buffer(bytes.data(), bytes.size(), "");
}

std::string failureOf(const std::filesystem::path& source, std::optional<ImageFormat> format,
                      const ImageJobSettings& settings) {
    try {
        ImageConverter{}.encodedData(source, settings, format);
        return {};
    } catch (const ConversionError& error) {
        return error.code();
    }
}

std::string fieldsOf(const VImage& image) {
    std::string letters;
    for (const double y : {0.25, 0.75}) {
        for (const double x : {0.25, 0.75}) {
            const auto colour =
                image.getpoint(static_cast<int>(x * image.width()), static_cast<int>(y * image.height()));
            const bool red = colour[0] > 128;
            const bool green = colour[1] > 128;
            const bool blue = colour[2] > 128;
            letters += red && green && blue ? 'W' : red ? 'R' : green ? 'G' : blue ? 'B' : '?';
        }
    }
    return letters;
}

double largestDifference(const VImage& one, const VImage& other) {
    return (one - other).abs().max();
}

double averageDifference(const VImage& one, const VImage& other) {
    return (one - other).abs().avg();
}

}  // namespace tamble::test
