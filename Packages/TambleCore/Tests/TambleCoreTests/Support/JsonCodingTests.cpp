#include <TambleCore/Support/Json/JsonCoding.h>

#include <limits>

namespace tamble {
namespace {

enum class Fruit { apple, pear };
BOOST_DESCRIBE_ENUM(Fruit, apple, pear)

struct Keep {
    static constexpr std::string_view caseName = "keep";
    friend bool operator==(const Keep&, const Keep&) = default;
};
BOOST_DESCRIBE_STRUCT(Keep, (), ())

struct Turn {
    static constexpr std::string_view caseName = "turn";
    Fruit value = Fruit::apple;
    friend bool operator==(const Turn&, const Turn&) = default;
};
BOOST_DESCRIBE_STRUCT(Turn, (), (value))

struct Basket {
    std::variant<Keep, Turn> action;
    std::optional<int> limit;
    std::vector<std::filesystem::path> files;
    std::uint8_t small = 0;
    double share = 0;
    bool isOpen = false;
    friend bool operator==(const Basket&, const Basket&) = default;
};
BOOST_DESCRIBE_STRUCT(Basket, (), (action, limit, files, small, share, isOpen))

std::string errorOf(std::string_view text) {
    try {
        decodeJson<Basket>(parseJson(text));
    } catch (const DecodeError& error) {
        return error.what();
    }
    return "no error";
}

constexpr std::string_view full =
    R"({"action":{"turn":{"_0":"pear"}},"limit":3,"files":["file:///a%FF%0A"],"small":255,"share":0.5,"isOpen":true})";

TEST(JsonCoding, recordsComeBackWhole) {
    const Basket basket{.action = Turn{Fruit::pear},
                        .limit = 3,
                        .files = {"/a\xFF\n"},
                        .small = 255,
                        .share = 0.5,
                        .isOpen = true};
    EXPECT_EQ(writeJson(encodeJson(basket)), full);
    EXPECT_EQ(decodeJson<Basket>(parseJson(full)), basket);
    EXPECT_EQ(writeJson(encodeJson(Basket{})),
              R"({"action":{"keep":{}},"files":[],"small":0,"share":0.0,"isOpen":false})");
}

TEST(JsonCoding, aPayloadHasExactlyOneKey) {
    const auto withAction = [](std::string_view action) {
        return errorOf(
            std::string(R"({"files":[],"small":0,"share":0,"isOpen":true,"action":)").append(action) + "}");
    };
    EXPECT_EQ(withAction(R"({"keep":{}})"), "no error");
    for (const auto* wrong : {"{}", R"({"keep":{},"turn":{"_0":"pear"}})", R"("keep")"}) {
        EXPECT_THAT(withAction(wrong), ::testing::HasSubstr("Invalid number of keys found, expected one."));
    }
    EXPECT_THAT(withAction(R"({"fly":{}})"), ::testing::HasSubstr("There is no case “fly”."));
    EXPECT_THAT(withAction(R"({"turn":{"_0":"plum"}})"), ::testing::HasSubstr("apple, pear"));
    EXPECT_THAT(withAction(R"({"turn":{}})"), ::testing::HasSubstr("“_0” is missing."));
}

TEST(JsonCoding, wrongValuesNameTheirField) {
    const auto replaced = [](std::string_view from, std::string_view to) {
        std::string text(full);
        return errorOf(text.replace(text.find(from), from.size(), to));
    };
    EXPECT_EQ(replaced(":255", ":256"), "“small”: The number is too large.");
    EXPECT_EQ(replaced(":255", ":-1"), "“small”: The number is too large or too small.");
    EXPECT_EQ(replaced(":255", ":1.5"), "“small”: A whole number was expected.");
    EXPECT_EQ(replaced("true", "1"), "“isOpen”: true or false was expected.");
    EXPECT_EQ(replaced("file:///", "http:///"), "“files”: A file URL was expected.");
    EXPECT_EQ(replaced(":3,", ":null,"), "no error");
    EXPECT_EQ(replaced("\"share\":0.5,", ""), "“share” is missing.");
    EXPECT_EQ(errorOf("[]"), "An object was expected.");
}

TEST(Json, deepDocumentsAreRefusedWhileParsing) {
    const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_NO_THROW(parseJson(nested(200)));
    EXPECT_THROW(parseJson(nested(300)), DecodeError);
    EXPECT_THROW(parseJson(nested(200'000)), DecodeError);
    EXPECT_THROW(parseJson(std::string(200'000, '[')), DecodeError);
    std::string objects;
    for (int i = 0; i < 100'000; ++i) objects += R"({"a":)";
    EXPECT_THROW(parseJson(objects), DecodeError);
    EXPECT_THROW(parseJson("{\"a\":1} x"), DecodeError);
    EXPECT_EQ(writeJson(Json("\xFF")), "\"\uFFFD\"");
}

}  // namespace
}  // namespace tamble
