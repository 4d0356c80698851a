#include <TambleCore/Images/ImageJobSettings.h>

#include <gtest/gtest.h>

namespace tamble {
namespace {

std::string whatDecodingSays(const Json& document) {
    try {
        decodeJson<ImageJobSettings>(document);
        return "";
    } catch (const DecodeError& error) {
        return error.what();
    }
}

TEST(ImageJobSettings, HaveTheStoredForm) {
    ImageJobSettings settings = ImageJobSettings::defaults(ImageTool::convert);
    EXPECT_EQ(
        writeJson(encodeJson(settings)),
        R"({"output":{"convert":{"_0":"webp"}},"quality":"balanced","rotation":"none","removeLocation":false,)"
        R"("removeAllMetadata":false,"removeBackground":false,"skipIfAlreadyInFormat":true,)"
        R"("preferLosslessMetadataEdit":false,"skipIfNotSmaller":false})");
    settings.output = image_output::KeepFormat{};
    settings.maxPixelSize = 800;
    const Json document = encodeJson(settings);
    EXPECT_EQ(writeJson(document["output"]), R"({"keepFormat":{}})");
    EXPECT_EQ(document["maxPixelSize"], 800);
    EXPECT_EQ(decodeJson<ImageJobSettings>(document), settings);
}

TEST(ImageJobSettings, RefuseWhatIsNotOneCase) {
    const Json good = encodeJson(ImageJobSettings{});
    for (const char* output : {R"({})", R"({"keepFormat":{},"convert":{"_0":"png"}})", R"("keepFormat")"}) {
        Json document = good;
        document["output"] = parseJson(output);
        EXPECT_NE(whatDecodingSays(document).find("Invalid number of keys found, expected one."),
                  std::string::npos)
            << output;
    }
    for (const char* output : {R"({"shrink":{}})", R"({"convert":{"_0":"bmp"}})", R"({"convert":{}})"}) {
        Json document = good;
        document["output"] = parseJson(output);
        EXPECT_NE(whatDecodingSays(document), "") << output;
    }
    Json document = good;
    document["quality"] = "huge";
    EXPECT_NE(whatDecodingSays(document), "");
    document = good;
    document["maxPixelSize"] = 1e10;
    EXPECT_NE(whatDecodingSays(document), "");
}

TEST(ImageJobSettings, MapQualityToTheEncodersFactor) {
    EXPECT_DOUBLE_EQ(compressionFactor(ImageJobSettings::Quality::smaller), 0.6);
    EXPECT_DOUBLE_EQ(compressionFactor(ImageJobSettings::Quality::balanced), 0.8);
    EXPECT_DOUBLE_EQ(compressionFactor(ImageJobSettings::Quality::best), 0.94);
}

TEST(ImageJobSettings, TakeTheNamesPeopleUse) {
    const SettingsSchema schema = imageSettingsSchema();
    const auto& output = schema.fieldNamed("output")->type;
    for (const auto& [typed, meant] : {std::pair("jpg", "jpeg"), {"tif", "tiff"}, {"heif", "heic"}}) {
        EXPECT_EQ(settingValue(output, std::string("convert:") + typed)["convert"]["_0"], meant);
    }
}

}  // namespace
}  // namespace tamble
