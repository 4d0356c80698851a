#include <TambleCore/Platform/PlainNameKeys.h>
#include <TambleCore/Support/Text.h>

#include <map>

namespace tamble {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

PlainNameKeys::PlainNameKeys(const std::function<std::string(std::string_view)>& collationKey) {
    std::map<std::string, std::uint8_t> placeOfKey{{collationKey(""), 0}};
    std::array<std::string, 128> keys;
    for (std::size_t code = 1; code < keys.size(); ++code) {
        const char character = static_cast<char>(code);
        keys[code] = collationKey(std::string_view(&character, 1));
        placeOfKey.emplace(keys[code], std::uint8_t{0});
    }
    // The empty key is the smallest of all, so that the places count from 0.
    std::uint8_t place = 0;
    for (auto& entry : placeOfKey) entry.second = place++;
    for (std::size_t code = 1; code < keys.size(); ++code) places_[code] = placeOfKey.at(keys[code]);
}

bool PlainNameKeys::isPlain(std::string_view name) {
    // The length of a number must fit a byte, as collations take longer numbers apart.
    return name.size() < 255 && isASCII(name);
}

void PlainNameKeys::append(std::string_view name, std::string& key) const {
    for (std::size_t i = 0; i < name.size();) {
        if (!isDigit(name[i])) {
            const auto place = places_[static_cast<std::uint8_t>(name[i])];
            if (place != 0) key += static_cast<char>(place);
            ++i;
            continue;
        }
        // A number is the place of all numbers, its length without leading zeros, and its digits.
        std::size_t end = i;
        while (end < name.size() && isDigit(name[end])) ++end;
        while (i + 1 < end && name[i] == '0') ++i;
        key += static_cast<char>(places_['0']);
        key += static_cast<char>(static_cast<std::uint8_t>(end - i));
        key.append(name.substr(i, end - i));
        i = end;
    }
}

}  // namespace tamble
