#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>
#include <TambleCore/Images/Metadata/ReadMetadata.h>

#include "ExifTool.h"

namespace tamble::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class CarriedMetadata : public testing::TestWithParam<FormatCase> {
  protected:
    void SetUp() override {
        if (!hasExifTool()) GTEST_SKIP() << "exiftool is not installed";
    }

    MetadataBlocks blocks(bool bigEndian) {
        const auto file = folder_.picture(GetParam().name, fourFields(48, 32));
        std::vector<std::string> words = photographTags();
        words.insert(words.end(), {"-Orientation#=8", "-XMP-tiff:Orientation#=8", "-ExifImageWidth=48",
                                   bigEndian ? "-ExifByteOrder=MM" : "-ExifByteOrder=II", file.string()});
        EXPECT_THAT(exifTool(words), Not(HasSubstr("Error")));
        return readMetadata(bytesOf(file));
    }

    PictureFolder folder_;
};

// From each container into each other: JPEG and TIFF hold all blocks, PNG too, WebP no IPTC.
TEST_P(CarriedMetadata, ReachesEveryContainer) {
    for (const auto removal :
         {MetadataRemoval::nothing, MetadataRemoval::location, MetadataRemoval::everything}) {
        const MetadataBlocks carried =
            carriedOver(blocks(removal == MetadataRemoval::location), removal, 70'000, 20);
        std::vector<Bytes> results;
        std::vector<std::filesystem::path> files;
        for (const FormatCase& target : losslessFormats) {
            const Bytes bare = bytesOf(folder_.picture("bare" + target.name, fourFields(30, 20)));
            results.push_back(withMetadata(bare, target.format, carried));
            EXPECT_EQ(largestDifference(shown(results.back()).autorot(), shown(bare)), 0);
            files.push_back(folder_.file("result" + std::to_string(files.size()), results.back()));
        }
        const std::vector<std::string> allTags = tagsOf(files);
        for (std::size_t i = 0; i < files.size(); ++i) {
            SCOPED_TRACE(losslessFormats[i].name);
            const std::string& tags = allTags[i];
            EXPECT_THAT(tags, AllOf(Not(HasSubstr("Warning")), Not(HasSubstr("Rotate"))));
            if (removal == MetadataRemoval::everything) {
                EXPECT_THAT(tags, Not(HasSubstr("Kameramann")));
                continue;
            }
            for (const char* kept : {"Kameramann", "2020:01:02", "seaside", "remark", "70000"}) {
                EXPECT_THAT(tags, HasSubstr(kept));
            }
            if (removal == MetadataRemoval::nothing) {
                EXPECT_THAT(tags, AllOf(HasSubstr("GPSLongitude"), HasSubstr("Placeville")));
            } else {
                for (const std::string& word : placeWords()) EXPECT_THAT(tags, Not(HasSubstr(word)));
                EXPECT_THAT(remainingTraces(results[i], losslessFormats[i].format, removal), IsEmpty());
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, CarriedMetadata, testing::ValuesIn(losslessFormats),
                         [](const auto& parameter) {
                             return std::string(displayName(parameter.param.format));
                         });

TEST(CarriedMetadata, BlocksTooLongForJpegLoseTheirLargestParts) {
    const PictureFolder folder;
    const auto bare = bytesOf(folder.picture("a.jpg", fourFields(16, 16)));
    const std::string packet =
        "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
        "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
        "xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmp:Label='green' xmp:Nickname='" +
        std::string(80'000, 'n') + "'/></rdf:RDF></x:xmpmeta>";
    MetadataBlocks blocks;
    blocks.xmp.emplace();
    append(*blocks.xmp, asBytes(packet));
    const MetadataBlocks read = readMetadata(withMetadata(bare, ImageFormat::jpeg, blocks));
    ASSERT_TRUE(read.xmp);
    EXPECT_NE(asText(*read.xmp).find("green"), std::string_view::npos);
    EXPECT_LT(read.xmp->size(), 65'000U);
}

// What can only be looked at, because it is written by others.
TEST(RemainingTraces, AreFoundInTheFormatsThatAreOnlyReencoded) {
    if (!hasExifTool()) GTEST_SKIP() << "exiftool is not installed";
    const PictureFolder folder;
    for (const auto& [name, format] :
         {std::pair("a.heic[strip]", ImageFormat::heic), std::pair("a.avif[strip]", ImageFormat::avif),
          std::pair("a.gif", ImageFormat::gif)}) {
        const auto file = folder.picture(name, fourFields(64, 64));
        EXPECT_THAT(remainingTraces(bytesOf(file), format, MetadataRemoval::location), IsEmpty()) << name;
        EXPECT_THAT(remainingTraces(bytesOf(file), format, MetadataRemoval::everything), IsEmpty()) << name;
        std::vector<std::string> words = photographTags();
        words.emplace_back(file);
        exifTool(words);
        EXPECT_THAT(remainingTraces(bytesOf(file), format, MetadataRemoval::location), Not(IsEmpty()))
            << name;
        EXPECT_THAT(remainingTraces(bytesOf(file), format, MetadataRemoval::everything), Not(IsEmpty()))
            << name;
        const MetadataBlocks blocks = readMetadata(bytesOf(file));
        ASSERT_TRUE(blocks.xmp) << name;
        EXPECT_NE(asText(*blocks.xmp).find("Placeville"), std::string_view::npos);
        if (format == ImageFormat::gif) continue;
        ASSERT_TRUE(blocks.exif) << name;
        EXPECT_NE(asText(*blocks.exif).find("Kameramann"), std::string_view::npos);
    }
}

}  // namespace
}  // namespace tamble::test
