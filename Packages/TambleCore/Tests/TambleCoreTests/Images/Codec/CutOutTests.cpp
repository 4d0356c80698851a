#include "TestPictures.h"

namespace tamble::test {
namespace {

using vips::VImage;

// White parts of a subject must not be taken for the see-through surroundings.
TEST(CutOutTests, APictureThatHasBeenCutOutStaysAsItIs) {
    const PictureFolder folder;
    const VImage place = VImage::xyz(96, 64);
    const VImage alpha =
        ((place[0] > 20) & (place[0] < 70) & (place[1] > 10) & (place[1] < 50)).cast(VIPS_FORMAT_UCHAR);
    const VImage subject = fourFields(96, 64).bandjoin(alpha).copy_memory();
    const VImage deepSubject = (subject * 257)
                                   .cast(VIPS_FORMAT_USHORT)
                                   .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_RGB16));
    for (const VImage& image : {subject, deepSubject}) {
        const auto source = folder.picture("a.png", image);
        const auto bytes = converted(source, ImageFormat::png, {.removeBackground = true});
        EXPECT_EQ(largestDifference(shown(bytes), image), 0);
    }
    const auto turned = converted(folder.picture("a.png", subject), ImageFormat::webp,
                                  {.rotation = ImageJobSettings::Rotation::right, .removeBackground = true});
    EXPECT_EQ(largestDifference(shown(turned)[3], alpha.rot90()), 0);
}

TEST(CutOutTests, NothingToSeeIsNoSubject) {
    const PictureFolder folder;
    const auto empty = folder.picture("a.png", fourFields(96, 64).bandjoin_const({0}).copy_memory());
    EXPECT_EQ(failureOf(empty, ImageFormat::png, {.removeBackground = true}), "noSubjectFound");
}

}  // namespace
}  // namespace tamble::test
