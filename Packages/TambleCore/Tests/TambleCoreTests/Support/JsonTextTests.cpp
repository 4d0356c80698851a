#include <TambleCore/Support/Json/JsonElements.h>
#include <TambleCore/Support/Json/JsonText.h>

namespace tamble {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Part {
    std::string text;
    std::optional<int> count;
    bool isOpen = false;
};
BOOST_DESCRIBE_STRUCT(Part, (), (text, count, isOpen))

struct Whole {
    std::vector<FilePath> files;
    std::map<FilePath, Part> byPath;
    std::optional<std::vector<Part>> more;
    double share = 0;
};
BOOST_DESCRIBE_STRUCT(Whole, (), (files, byPath, more, share))

TEST(JsonText, isTheTextOfTheDocument) {
    const Whole whole{.files = {"/a b/ü.png", "/x/../y/", "/\xFF"},
                      .byPath = {{"/quote\"d", {.text = "line\nbreak \xFF", .count = -7}}, {"/b", {}}},
                      .more = {{{.text = "ü", .isOpen = true}, {}}},
                      .share = 0.1};
    for (const Whole& value : {whole, Whole()}) {
        std::string text;
        appendJson(text, value);
        EXPECT_EQ(text, writeJson(encodeJson(value)));
    }
}

TEST(JsonElements, areFoundByBracketsAndStringsAlone) {
    EXPECT_THAT(jsonElements(" [ ] "), IsEmpty());
    EXPECT_THAT(jsonElements(R"([{"a":"],\"}","b":[1,{}]} , "x\\" ,[[]],  2 ])"),
                ElementsAre(R"({"a":"],\"}","b":[1,{}]})", R"("x\\")", "[[]]", "2"));
    for (const char* wrong :
         {"", "[", "]", "{}", "[1", "[1,]", "[,1]", "[1]]", "[1]2]", "[\"a]", "[\"a\\\"]", "[{]", "[[1]"}) {
        EXPECT_THROW(jsonElements(wrong), DecodeError) << wrong;
    }
}

TEST(Json, readsObjectsOfManyMembersInLinearTime) {
    // A search through the members for each new one would take minutes.
    std::string text = "{\"0\":0";
    for (int i = 1; i < 200'000; ++i)
        text += fmt::format(R"(,"a name that takes a while to compare {}":{})", i, i);
    EXPECT_EQ(parseJson(text + "}").size(), 200'000U);
}

}  // namespace
}  // namespace tamble
