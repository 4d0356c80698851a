#include <TambleCore/Support/Json/JsonCoding.h>
#include <TambleCore/Support/Settings/SettingsSchema.h>

namespace tamble {
namespace {

enum class Size { small, large };
BOOST_DESCRIBE_ENUM(Size, small, large)

std::vector<std::string> otherNames(Size size) {
    return size == Size::large ? std::vector<std::string>{"big"} : std::vector<std::string>{};
}

struct Same {
    static constexpr std::string_view caseName = "same";
};
BOOST_DESCRIBE_STRUCT(Same, (), ())

struct Into {
    static constexpr std::string_view caseName = "into";
    Size value = Size::small;
};
BOOST_DESCRIBE_STRUCT(Into, (), (value))

struct Sample {
    std::variant<Same, Into> output;
    std::optional<int> maxPixelSize;
    bool isOn = false;
    double share = 0;
    std::filesystem::path logo;
};
BOOST_DESCRIBE_STRUCT(Sample, (), (output, maxPixelSize, isOn, share, logo))

const SettingsSchema& schema() {
    static const SettingHint hints[] = {
        {.field = "maxPixelSize", .help = "Longest side", .range = {{1, 100}}}};
    static const SettingsSchema made = settingsSchema<Sample>(hints);
    return made;
}

/// The JSON that the typed text stands for, or the sentence that refuses it.
std::string typed(std::string_view field, std::string_view text) {
    try {
        return writeJson(settingValue(schema().fieldNamed(field)->type, text));
    } catch (const SettingError& error) {
        return error.what();
    }
}

TEST(SettingType, typedTextBecomesTheJsonOfItsField) {
    EXPECT_EQ(typed("output", "same"), R"({"same":{}})");
    EXPECT_EQ(typed("output", "into:large"), R"({"into":{"_0":"large"}})");
    EXPECT_EQ(typed("output", "into:big"), R"({"into":{"_0":"large"}})");
    EXPECT_EQ(typed("maxPixelSize", "1920"), "1920");
    EXPECT_EQ(typed("maxPixelSize", "none"), "null");
    EXPECT_EQ(typed("isOn", "off"), "false");
    EXPECT_EQ(typed("share", "0.25"), "0.25");
    EXPECT_EQ(typed("logo", "/a b"), "\"file:///a%20b\"");
}

TEST(SettingType, wrongTextIsRefusedWithTheNearestWord) {
    EXPECT_EQ(typed("output", "samee"), "“samee” is not one of: same, into. Did you mean “same”?");
    EXPECT_EQ(typed("output", "into"), "“into” needs a value, as in into:small|large.");
    EXPECT_EQ(typed("output", "same:1"), "“same” takes no value.");
    EXPECT_EQ(typed("output", "into:larg"), "“larg” is not one of: small, large. Did you mean “large”?");
    for (const auto* wrong : {"", "12px", "1e3", "99999999999999999999", " 1", "1.0"}) {
        EXPECT_THAT(typed("maxPixelSize", wrong), ::testing::HasSubstr("is not a whole number.")) << wrong;
    }
    EXPECT_EQ(typed("isOn", "maybe"), "“maybe” is neither true nor false.");
}

TEST(SettingType, helpAndCompletionComeFromTheDeclaration) {
    const auto& output = schema().fieldNamed("output")->type;
    EXPECT_EQ(settingSyntax(output), "same or into:small|large");
    EXPECT_THAT(settingWords(output), ::testing::ElementsAre("same", "into:small", "into:large"));
    EXPECT_EQ(schema().fieldNamed("maxPixelSize")->flag(), "max-pixel-size");
    EXPECT_EQ(schema().fieldNamed("nothing"), nullptr);
}

TEST(SettingsSchema, mergesKnownMembersWithinTheirRange) {
    const Json base = encodeJson(Sample{.maxPixelSize = 50, .logo = "/l"});
    const auto merged = [&](std::string_view changes) -> std::string {
        try {
            return writeJson(schema().merged(base, parseJson(changes)));
        } catch (const SettingError& error) {
            return error.what();
        }
    };
    EXPECT_EQ(merged(R"({"maxPixelSize":100,"isOn":true})"),
              R"({"output":{"same":{}},"maxPixelSize":100,"isOn":true,"share":0.0,"logo":"file:///l"})");
    EXPECT_EQ(merged(R"({"maxPixelSize":null})"),
              R"({"output":{"same":{}},"isOn":false,"share":0.0,"logo":"file:///l"})");
    for (const auto* outside : {"0", "101", "100.5", "-1", "18446744073709551615"}) {
        EXPECT_EQ(merged(std::string(R"({"maxPixelSize":)") + outside + "}"),
                  "“maxPixelSize” must be between 1 and 100.")
            << outside;
    }
    EXPECT_EQ(merged(R"({"maxPixelSizes":1})"),
              "There is no setting “maxPixelSizes”. Did you mean “maxPixelSize”?");
    EXPECT_THAT(merged("[]"), ::testing::HasSubstr("written as an object"));
}

}  // namespace
}  // namespace tamble
