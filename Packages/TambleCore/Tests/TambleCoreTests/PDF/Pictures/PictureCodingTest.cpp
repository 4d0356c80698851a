#include <TambleCore/PDF/Pictures/SampleRows.h>

#include <cmath>

#include <TambleCoreTests/PDF/Pictures/PictureBook.h>
#include <gtest/gtest.h>

namespace tamble::pdf {
namespace {

constexpr int wide = 800;
constexpr int high = 600;
/// Two inches: 300 pixels.
const std::string drawn = "144 0 0 108 0 0 cm /X Do";

/// The largest difference to the photograph of this size, where noise is averaged.
int differenceToPhotograph(const Bytes& samples, int width, int height, int channels,
                           bool isInverted = false) {
    int largest = 0;
    for (int y = 8; y < height - 8; y += 7) {
        for (int x = 8; x < width - 8; x += 7) {
            for (int channel = 0; channel < channels; ++channel) {
                int expected = (channel == 0   ? 20 + 200 * x / width
                                : channel == 1 ? 20 + 200 * y / height
                                               : 120) +
                               7;
                if (isInverted) expected = 255 - expected;
                const int found = samples.at(static_cast<std::size_t>((y * width + x) * channels + channel));
                largest = std::max(largest, std::abs(found - expected));
            }
        }
    }
    return largest;
}

constexpr int hardlyVisible = 12;

class PictureCoding : public testing::Test {
  protected:
    PictureBook book;

    QPDFObjectHandle after(const QPDFObjectHandle& picture) {
        book.page(drawn, picture);
        result_ = book.compressed();
        return shownOn(*result_, 0);
    }
    void expectPhotograph(QPDFObjectHandle picture, int channels, const char* space) {
        EXPECT_EQ(filterOf(picture), "/DCTDecode");
        EXPECT_EQ(widthOf(picture), 300);
        EXPECT_EQ(picture.getDict().getKey("/ColorSpace").unparse(), space);
        EXPECT_LE(differenceToPhotograph(samplesOf(picture), 300, 225, channels), hardlyVisible);
    }
    void expectUntouched(const QPDFObjectHandle& picture) {
        const Bytes before = codedBytes(picture);
        const auto there = after(picture);
        EXPECT_EQ(widthOf(there), wide);
        EXPECT_EQ(codedBytes(there), before);
    }

  private:
    std::optional<Document> result_;
};

TEST_F(PictureCoding, KeepsTheColoursOfJpegs) {
    expectPhotograph(after(book.jpeg(photographJpeg(wide, high, 3), wide, high)), 3, "/DeviceRGB");
}

TEST_F(PictureCoding, KeepsTheColoursOfGrayJpegs) {
    expectPhotograph(
        after(book.jpeg(photographJpeg(wide, high, 1), wide, high, {{"/ColorSpace", "/DeviceGray"}})), 1,
        "/DeviceGray");
}

TEST_F(PictureCoding, KeepsTheColoursOfInvertedInks) {
    const auto picture = after(book.jpeg(photographJpeg(wide, high, 4), wide, high,
                                         {{"/ColorSpace", "/DeviceCMYK"}, {"/Decode", "[1 0 1 0 1 0 1 0]"}}));
    expectPhotograph(picture, 4, "/DeviceCMYK");
    EXPECT_EQ(QPDFObjectHandle(picture).getDict().getKey("/Decode").getArrayNItems(), 8);
}

TEST_F(PictureCoding, MakesJpegsOfSamples) {
    expectPhotograph(after(book.picture(photograph(wide, high, 3), wide, high)), 3, "/DeviceRGB");
}

TEST_F(PictureCoding, MakesJpegsOfFilteredSamples) {
    const Bytes samples = photograph(wide, high, 3);
    PngFilter filter(3 * wide, 3);
    Bytes filtered;
    for (std::size_t y = 0; y < high; ++y)
        filter.put(ByteView(samples).subspan(y * 3 * wide, 3 * wide), filtered);
    const std::string columns = "/Colors 3 /Columns " + std::to_string(wide);
    expectPhotograph(
        after(book.picture(filtered, wide, high, {{"/DecodeParms", "<< /Predictor 15 " + columns + " >>"}})),
        3, "/DeviceRGB");
}

TEST_F(PictureCoding, MakesJpegsOfDifferences) {
    Bytes samples = photograph(wide, high, 1);
    for (std::size_t at = samples.size() - 1; at > 0; --at) {
        if (at % wide != 0) samples[at] = static_cast<std::uint8_t>(samples[at] - samples[at - 1]);
    }
    const std::string parameters = "<< /Predictor 2 /Columns " + std::to_string(wide) + " >>";
    expectPhotograph(after(book.picture(samples, wide, high,
                                        {{"/DecodeParms", parameters}, {"/ColorSpace", "/DeviceGray"}})),
                     1, "/DeviceGray");
}

TEST_F(PictureCoding, MakesJpegsOfSixteenBits) {
    Bytes samples;
    for (const std::uint8_t sample : photograph(wide, high, 3))
        samples.insert(samples.end(), {sample, sample});
    const auto picture = after(book.picture(samples, wide, high, {{"/BitsPerComponent", "16"}}));
    expectPhotograph(picture, 3, "/DeviceRGB");
    EXPECT_EQ(QPDFObjectHandle(picture).getDict().getKey("/BitsPerComponent").getIntValue(), 8);
}

TEST_F(PictureCoding, MakesJpegsOfIndicesInTheirColours) {
    std::string colours;
    for (int i = 0; i < 256; ++i) colours += fmt::format("{:02x}", 255 - i);
    const auto picture =
        after(book.picture(photograph(wide, high, 1), wide, high,
                           {{"/ColorSpace", "[/Indexed /DeviceGray 255 <" + colours + ">]"}}));
    EXPECT_EQ(QPDFObjectHandle(picture).getDict().getKey("/ColorSpace").unparse(), "/DeviceGray");
    EXPECT_LE(differenceToPhotograph(samplesOf(picture), 300, 225, 1, true), hardlyVisible);
}

TEST_F(PictureCoding, PeelsJpegsOutOfOtherFilters) {
    const Bytes file = deflatedBytes(photographJpeg(wide, high, 3));
    expectPhotograph(after(book.jpeg(file, wide, high, {{"/Filter", "[/FlateDecode /DCTDecode]"}})), 3,
                     "/DeviceRGB");
}

TEST_F(PictureCoding, ShrinksSoftMasksWithoutLoss) {
    auto mask = book.picture(photograph(wide, high, 1), wide, high, {{"/ColorSpace", "/DeviceGray"}});
    auto photo = book.jpeg(photographJpeg(wide, high, 3), wide, high);
    photo.getDict().replaceKey("/SMask", mask);
    auto there = after(photo);
    expectPhotograph(there, 3, "/DeviceRGB");
    auto small = there.getDict().getKey("/SMask");
    EXPECT_EQ(widthOf(small), 300);
    EXPECT_EQ(filterOf(small), "/FlateDecode");
    EXPECT_LE(differenceToPhotograph(samplesOf(small), 300, 225, 1), hardlyVisible);
}

TEST_F(PictureCoding, LeavesPicturesAloneWhoseMaskWasMixedIn) {
    auto mask = book.picture(photograph(wide, high, 1), wide, high,
                             {{"/ColorSpace", "/DeviceGray"}, {"/Matte", "[0 0 0]"}});
    auto photo = book.jpeg(photographJpeg(wide, high, 3), wide, high);
    photo.getDict().replaceKey("/SMask", mask);
    expectUntouched(photo);
}

TEST_F(PictureCoding, LeavesColourKeysAlone) {
    expectUntouched(book.jpeg(photographJpeg(wide, high, 3), wide, high, {{"/Mask", "[0 9 0 9 0 9]"}}));
}

TEST_F(PictureCoding, LeavesDamagedJpegsAlone) {
    Bytes half = photographJpeg(wide, high, 3);
    half.resize(half.size() / 2);
    expectUntouched(book.jpeg(half, wide, high));
}

TEST_F(PictureCoding, LeavesJpegsOfAnotherSizeThanTheySayAlone) {
    expectUntouched(book.jpeg(photographJpeg(wide / 2, high, 3), wide, high));
}

TEST_F(PictureCoding, LeavesOtherCodingsAlone) {
    expectUntouched(book.picture(photograph(wide, 4, 3), wide, high, {{"/Filter", "/JPXDecode"}}));
}

TEST_F(PictureCoding, KeepsDrawingsToTheSample) {
    Bytes samples(std::size_t{3} * wide * high, 255);
    for (std::size_t at = 0; at < samples.size(); at += 3 * (37 + at % 11))
        samples[at] = static_cast<std::uint8_t>(at % 5);
    const auto there = after(book.picture(samples, wide, high));
    EXPECT_EQ(filterOf(there), "/FlateDecode");
    EXPECT_EQ(samplesOf(there), samples);
}

TEST_F(PictureCoding, KeepsStencilsToTheSample) {
    const Bytes samples = photograph(wide / 8, high, 1);
    const auto there = after(book.picture(
        samples, wide, high, {{"/ImageMask", "true"}, {"/ColorSpace", "null"}, {"/BitsPerComponent", "1"}}));
    EXPECT_EQ(widthOf(there), wide);
    EXPECT_EQ(samplesOf(there), samples);
}

TEST_F(PictureCoding, KeepsColoursThatOthersCannotStandForToTheSample) {
    const Bytes samples = photograph(wide, high, 3);
    const auto there =
        after(book.picture(samples, wide, high, {{"/ColorSpace", "[/Lab << /WhitePoint [0.95 1 1.09] >>]"}}));
    EXPECT_EQ(samplesOf(there), samples);
    EXPECT_EQ(QPDFObjectHandle(there).getDict().getKey("/DecodeParms").getKey("/Predictor").getIntValue(),
              15);
}

TEST_F(PictureCoding, DoesNotLoseASecondTime) {
    book.page(drawn, book.jpeg(photographJpeg(wide, high, 3), wide, high));
    const Bytes once = codedBytes(shownOn(book.compressed(), 0));
    PictureBook second;
    second.page(drawn, second.jpeg(once, 300, 225));
    EXPECT_EQ(codedBytes(shownOn(second.compressed(), 0)), once);
}

}  // namespace
}  // namespace tamble::pdf
