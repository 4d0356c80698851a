#include <TambleCore/Platform/FinderOrder.h>

#include <random>

namespace tamble {
namespace {

std::vector<std::string> inOrder(std::vector<std::string> names) {
    const std::vector<std::string_view> views(names.begin(), names.end());
    std::vector<std::string> result;
    for (const auto index : FinderOrder().sorted(views)) result.push_back(names[index]);
    return result;
}

TEST(FinderOrder, numbersCompareByValueAndCaseIsIgnored) {
    EXPECT_EQ(inOrder({"10.jpg", "2.jpg", "1.jpg"}), (std::vector<std::string>{"1.jpg", "2.jpg", "10.jpg"}));
    EXPECT_EQ(inOrder({"b", "C", "a", "B2", "b10", "B 1"}),
              (std::vector<std::string>{"a", "b", "B 1", "B2", "b10", "C"}));
    EXPECT_EQ(inOrder({"a-2", "a 2", "a_2", "a2"}), (std::vector<std::string>{"a 2", "a_2", "a-2", "a2"}));
    EXPECT_EQ(inOrder({"z", "é", "e", "f", "É1"}), (std::vector<std::string>{"e", "é", "É1", "f", "z"}));
    EXPECT_EQ(FinderOrder().compare("IMG_007", "img_7"), 0);
}

TEST(FinderOrder, equalNamesFollowEachOtherByTheirBytes) {
    EXPECT_EQ(inOrder({"img_7", "IMG_7", "img_007"}),
              (std::vector<std::string>{"IMG_7", "img_007", "img_7"}));
    EXPECT_EQ(inOrder({"é", "e\xCC\x81"}), (std::vector<std::string>{"e\xCC\x81", "é"}));
}

TEST(FinderOrder, anyBytesAndAnyLengthHaveAPlace) {
    const std::string digits(400, '7');
    EXPECT_EQ(inOrder({digits + "1", "\xFF\xFE", "b\xC3", digits + "0"}).size(), 4U);
    EXPECT_FALSE(FinderOrder().sortKey(std::string(100'000, 'x')).empty());
    EXPECT_EQ(inOrder({}).size(), 0U);
}

TEST(FinderOrder, plainNamesStandAsTheWholeCollationPutsThem) {
    const FinderOrder order;
    std::mt19937 random(7);
    // Few characters, so that names share beginnings, cases and numbers; then all that a name may hold.
    std::string all;
    for (char c = 1; c != 127; ++c) all += c;
    for (const auto& alphabet : {std::string("aAbB0019 ._-"), all}) {
        std::vector<std::string> names(500);
        for (auto& name : names) {
            for (auto length = random() % 9; length > 0; --length)
                name += alphabet[random() % alphabet.size()];
        }
        const std::vector<std::string_view> views(names.begin(), names.end());
        const auto sorted = order.sorted(views);
        for (std::size_t i = 1; i < sorted.size(); ++i) {
            const int compared = order.compare(views[sorted[i - 1]], views[sorted[i]]);
            EXPECT_TRUE(compared < 0 || (compared == 0 && views[sorted[i - 1]] <= views[sorted[i]]))
                << ::testing::PrintToString(views[sorted[i - 1]]) << " before "
                << ::testing::PrintToString(views[sorted[i]]);
        }
    }
}

}  // namespace
}  // namespace tamble
