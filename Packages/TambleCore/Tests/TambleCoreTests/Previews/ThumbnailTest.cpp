#include "PreviewTest.h"
#include <libheif/heif.h>

namespace tamble {
namespace {

void check(const heif_error& error) {
    if (error.code != heif_error_Ok) throw std::runtime_error(error.message);
}

struct Release {
    void operator()(heif_context* context) const { heif_context_free(context); }
    void operator()(heif_encoder* encoder) const { heif_encoder_release(encoder); }
    void operator()(heif_image* image) const { heif_image_release(image); }
    void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }
};
template <typename Thing>
using Owned = std::unique_ptr<Thing, Release>;

Owned<heif_image> heifOf(const vips::VImage& picture) {
    heif_image* image = nullptr;
    check(heif_image_create(picture.width(), picture.height(), heif_colorspace_RGB,
                            heif_chroma_interleaved_RGB, &image));
    Owned<heif_image> owned(image);
    check(heif_image_add_plane(image, heif_channel_interleaved, picture.width(), picture.height(), 8));
    int stride = 0;
    auto* const plane = heif_image_get_plane(image, heif_channel_interleaved, &stride);
    const vips::VImage pixels = picture.copy_memory();
    const auto row = static_cast<std::size_t>(3 * picture.width());
    for (int y = 0; y < picture.height(); ++y)
        std::memcpy(plane + y * stride,
                    static_cast<const char*>(pixels.data()) + row * static_cast<std::size_t>(y), row);
    return owned;
}

/// A photo as cameras store it, with a thumbnail of half the sides of `small`: another picture, to tell which
/// is shown.
void writeHEIC(const std::filesystem::path& path, const vips::VImage& photo, const vips::VImage& small) {
    const Owned<heif_context> context(heif_context_alloc());
    heif_encoder* encoder = nullptr;
    check(heif_context_get_encoder_for_format(context.get(), heif_compression_HEVC, &encoder));
    const Owned<heif_encoder> encoding(encoder);
    heif_image_handle* whole = nullptr;
    check(heif_context_encode_image(context.get(), heifOf(photo).get(), encoder, nullptr, &whole));
    const Owned<heif_image_handle> wholeOwned(whole);
    heif_image_handle* thumbnail = nullptr;
    check(heif_context_encode_thumbnail(context.get(), heifOf(small).get(), whole, encoder, nullptr,
                                        std::max(small.width(), small.height()) / 2, &thumbnail));
    const Owned<heif_image_handle> thumbnailOwned(thumbnail);
    check(heif_context_write_to_file(context.get(), path.c_str()));
}

TEST_F(PreviewTest, AThumbnailStandsForItsPhotoWhereItIsLargeEnoughAndOfItsShape) {
    const auto path = folder_.files() / "phone.heic";
    const auto shown = [&](int size) {
        const auto picture = previewer_.photo(input(path), size, {});
        return fmt::format("{}x{} {}", picture.width, picture.height, quarters(picture));
    };
    const auto photo = test::fourFields(640, 480);
    writeHEIC(path, photo, test::fourFields(320, 240).rot180());
    EXPECT_EQ(shown(80), "80x60 WBGR");
    EXPECT_EQ(shown(160), "160x120 WBGR");
    EXPECT_EQ(shown(161), "161x121 RGBW");
    EXPECT_EQ(shown(1000), "640x480 RGBW");
    writeHEIC(path, photo, test::fourFields(320, 320).rot180());
    EXPECT_EQ(shown(80), "80x60 RGBW");
    // What a tool makes of it is never made of the thumbnail.
    const auto* const resize = ToolCatalog::definition("image.resize");
    auto settings = ImageJobSettings::defaults(ImageTool::resize);
    settings.maxPixelSize = 80;
    settings.output = image_output::Convert{ImageFormat::png};
    writeHEIC(path, photo, test::fourFields(320, 240).rot180());
    const auto result = previewer_.result(*resize, encodeJson(settings), {}, input(path), {});
    ASSERT_EQ(result.files().size(), 1U);
    EXPECT_EQ(quarters(previewer_.photo(result.files().front(), 80, {})), "RGBW");
}

}  // namespace
}  // namespace tamble
