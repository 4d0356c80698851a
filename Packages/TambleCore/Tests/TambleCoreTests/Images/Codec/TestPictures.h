#pragma once

#include <TambleCore/Images/ImageConverter.h>

#include <vips/vips8>

namespace tamble::test {

/// A folder that lives as long as the test.
class PictureFolder {
  public:
    PictureFolder();
    ~PictureFolder();
    PictureFolder(const PictureFolder&) = delete;
    PictureFolder& operator=(const PictureFolder&) = delete;

    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
    /// Writes bytes to a file of that name.
    std::filesystem::path file(std::string_view name, std::span<const std::byte> content) const;
    /// Saves with libvips, whose saver and options follow from the name, such as "a.jpg[Q=90]".
    std::filesystem::path picture(std::string_view name, const vips::VImage& image) const;

  private:
    std::filesystem::path path_;
};

/// Four fields of one colour: red, green at the top, blue, white at the bottom. It shows how a picture lies.
vips::VImage fourFields(int width, int height);
/// Smooth colours with some noise: what a lossy codec makes of a photograph.
vips::VImage photograph(int width, int height);
vips::VImage withOrientation(const vips::VImage& image, int orientation);
/// How the picture is stored when the orientation says how to turn it upright.
vips::VImage storedAs(const vips::VImage& upright, int orientation);

/// The converter's result in memory.
ImageConverter::Memory converted(const std::filesystem::path& source, ImageFormat format,
                                 const ImageJobSettings& settings = {});
/// The result as any reader shows it, as 8-bit sRGB without alpha if it has none. `bytes` must outlive it.
vips::VImage shown(const ImageConverter::Memory& bytes);
/// The code of the failure, "" when there is none.
std::string failureOf(const std::filesystem::path& source, std::optional<ImageFormat> format,
                      const ImageJobSettings& settings = {});

/// The letters of the colours in the four fields, from left to right and top to bottom: "RGBW" when upright.
std::string fieldsOf(const vips::VImage& image);
/// Between two 8-bit pictures, over all pixels and bands.
double largestDifference(const vips::VImage& one, const vips::VImage& other);
double averageDifference(const vips::VImage& one, const vips::VImage& other);

}  // namespace tamble::test
