#include <TambleCore/Images/Lossless/LosslessEdit.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/Images/Metadata/Containers/WebPChunks.h>

#include <random>

#include "../Metadata/ExifTool.h"

namespace tamble::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// What the picture is coded in, without anything around it. A TIFF's strips are found by the decoder.
Bytes codedData(ByteView file, ImageFormat format) {
    Bytes result;
    if (format == ImageFormat::jpeg) {
        const auto layout = jpeg::layout(file);
        for (const auto& segment : layout->segments) {
            if (segment.kind == jpeg::Kind::coding) append(result, segment.whole);
        }
    } else if (format == ImageFormat::png) {
        const auto layout = png::layout(file);
        for (const auto& chunk : layout->chunks) {
            if (chunk.type == "IDAT") append(result, chunk.data);
        }
    } else if (format == ImageFormat::webp) {
        const auto layout = webp::layout(file);
        for (const auto& chunk : layout->chunks) {
            if (chunk.type == "VP8L" || chunk.type == "VP8 ") append(result, chunk.data);
        }
    } else {
        const auto picture = vips::VImage::new_from_buffer(file.data(), file.size(), "");
        std::size_t size = 0;
        void* pixels = picture.write_to_memory(&size);
        append(result, std::as_bytes(std::span(static_cast<const char*>(pixels), size)));
        g_free(pixels);
    }
    return result;
}

class LosslessClean : public testing::TestWithParam<FormatCase> {
  protected:
    void SetUp() override {
        if (!hasExifTool()) GTEST_SKIP() << "exiftool is not installed";
    }

    /// A picture with an orientation and all kinds of metadata, in either byte order.
    std::filesystem::path photo(int orientation, bool bigEndian) {
        const auto file = folder_.picture(GetParam().name, fourFields(48, 32));
        std::vector<std::string> words = photographTags();
        words.push_back("-Orientation#=" + std::to_string(orientation));
        words.emplace_back(bigEndian ? "-ExifByteOrder=MM" : "-ExifByteOrder=II");
        if (GetParam().format == ImageFormat::jpeg) {
            words.emplace_back("-ThumbnailImage<=" +
                               folder_.picture("thumb.jpg[strip]", fourFields(16, 16)).string());
            words.emplace_back("-Comment=remark");
        }
        words.emplace_back(file);
        EXPECT_THAT(exifTool(words), Not(HasSubstr("Error")));
        return file;
    }

    PictureFolder folder_;
};

TEST_P(LosslessClean, TakesTheLocationAndKeepsTheRest) {
    for (const int orientation : {1, 6}) {
        const Bytes source = bytesOf(photo(orientation, orientation == 6));
        EXPECT_THAT(remainingTraces(source, GetParam().format, MetadataRemoval::location), Not(IsEmpty()));

        const auto cleaned = losslesslyCleaned(source, GetParam().format, MetadataRemoval::location);
        ASSERT_TRUE(cleaned);
        EXPECT_EQ(codedData(*cleaned, GetParam().format), codedData(source, GetParam().format));
        EXPECT_THAT(remainingTraces(*cleaned, GetParam().format, MetadataRemoval::location), IsEmpty());
        const std::string tags = tagsOf(folder_.file("cleaned", *cleaned));
        for (const std::string& word : placeWords()) EXPECT_THAT(tags, Not(HasSubstr(word)));
        for (const char* kept : {"Kameramann", "2020:01:02", "seaside", "remark"})
            EXPECT_THAT(tags, HasSubstr(kept));
        EXPECT_THAT(tags, HasSubstr(orientation == 6 ? "Rotate 90 CW" : "Horizontal"));
        EXPECT_THAT(tags, Not(HasSubstr("Warning")));
        // The bytes are gone, not only the names that point to them.
        EXPECT_EQ(asText(*cleaned).find("Placeville"), std::string_view::npos);
        EXPECT_EQ(asText(*cleaned).find("WGS"), std::string_view::npos);
    }
}

TEST_P(LosslessClean, HidesEverythingAndStaysUpright) {
    const ImageFormat format = GetParam().format;
    const Bytes photos[]{bytesOf(photo(1, false)), bytesOf(photo(1, true))};
    std::vector<std::filesystem::path> turned;
    for (int orientation = 1; orientation <= 8; ++orientation) {
        turned.push_back(folder_.file("source" + std::to_string(orientation), photos[orientation % 2]));
    }
    std::vector<std::string> words{"-q", "-overwrite_original", "-Orientation#<${filename;s/source//}"};
    words.insert(words.end(), turned.begin(), turned.end());
    EXPECT_THAT(exifTool(words), Not(HasSubstr("Error")));

    std::vector<std::filesystem::path> files;
    for (const auto& file : turned) {
        const Bytes source = bytesOf(file);
        EXPECT_THAT(remainingTraces(source, format, MetadataRemoval::everything), Not(IsEmpty()));
        const auto cleaned = losslesslyCleaned(source, format, MetadataRemoval::everything);
        ASSERT_TRUE(cleaned);
        EXPECT_EQ(codedData(*cleaned, format), codedData(source, format));
        EXPECT_THAT(remainingTraces(*cleaned, format, MetadataRemoval::everything), IsEmpty());
        EXPECT_EQ(fieldsOf(shown(*cleaned).autorot()), fieldsOf(shown(source).autorot()));
        files.push_back(folder_.file("cleaned" + std::to_string(files.size()), *cleaned));
    }
    const std::vector<std::string> tags = tagsOf(files);
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const bool hasOrientation = tags[i].find("Orientation") != std::string::npos;
        EXPECT_EQ(hasOrientation, i != 0 || format == ImageFormat::tiff) << tags[i];
        for (const char* gone :
             {"Kameramann", "2020:", "seaside", "remark", "GPS", "XMP", "IPTC", "Thumbnail", "Warning"}) {
            EXPECT_THAT(tags[i], Not(HasSubstr(gone)));
        }
    }
}

TEST_P(LosslessClean, TakesWhatFollowsThePicturesEnd) {
    Bytes source = bytesOf(photo(1, false));
    const std::size_t size = source.size();
    append(source, asBytes("ftypmp42 a film with sound"));
    for (const auto removal : {MetadataRemoval::location, MetadataRemoval::everything}) {
        EXPECT_THAT(remainingTraces(source, GetParam().format, removal), Not(IsEmpty()));
        const auto cleaned = losslesslyCleaned(source, GetParam().format, removal);
        ASSERT_TRUE(cleaned);
        EXPECT_LE(cleaned->size(), size + 64);
        EXPECT_EQ(asText(*cleaned).find("a film"), std::string_view::npos);
    }
}

TEST_P(LosslessClean, KeepsTheColourProfile) {
    const auto withProfile =
        fourFields(48, 32).icc_transform("p3", vips::VImage::option()->set("input_profile", "srgb"));
    const auto source = bytesOf(folder_.picture(GetParam().name, withProfile));
    const auto cleaned = losslesslyCleaned(source, GetParam().format, MetadataRemoval::everything);
    ASSERT_TRUE(cleaned);
    EXPECT_THAT(remainingTraces(*cleaned, GetParam().format, MetadataRemoval::everything), IsEmpty());
    EXPECT_EQ(shown(*cleaned).get_typeof(VIPS_META_ICC_NAME), VIPS_TYPE_BLOB);
    EXPECT_EQ(largestDifference(shown(*cleaned), shown(source)), 0);
}

// Whatever is cut off or turned over: no crash, and what comes back holds no location.
TEST_P(LosslessClean, BearsDamagedFiles) {
    const Bytes source = bytesOf(photo(6, true));
    const auto check = [&](ByteView file) {
        for (const auto removal : {MetadataRemoval::location, MetadataRemoval::everything}) {
            const auto cleaned = losslesslyCleaned(file, GetParam().format, removal);
            if (!cleaned) continue;
            const auto traces = remainingTraces(*cleaned, GetParam().format, removal);
            ASSERT_THAT(traces, IsEmpty());
        }
    };
    for (std::size_t size = 0; size < source.size(); size += 1 + size / 64)
        check(ByteView(source).first(size));
    std::mt19937 random(7);
    for (int round = 0; round < 600; ++round) {
        Bytes damaged = source;
        for (int i = 0; i < 4; ++i) damaged[random() % damaged.size()] = static_cast<std::byte>(random());
        check(damaged);
        if (HasFatalFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, LosslessClean, testing::ValuesIn(losslessFormats),
                         [](const auto& parameter) {
                             return std::string(displayName(parameter.param.format));
                         });

}  // namespace
}  // namespace tamble::test
