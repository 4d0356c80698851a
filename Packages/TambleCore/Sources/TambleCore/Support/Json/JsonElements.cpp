#include <TambleCore/Support/Json/Json.h>
#include <TambleCore/Support/Json/JsonElements.h>

namespace tamble {
namespace {

constexpr std::string_view whiteSpace = " \t\r\n";

[[noreturn]] void refuse() {
    throw DecodeError("This is not a JSON list, or it is cut off.");
}

/// The position after the string that begins at `quote`.
std::size_t endOfString(std::string_view text, std::size_t quote) {
    std::size_t end = quote;
    for (;;) {
        end = text.find('"', end + 1);
        if (end == std::string_view::npos) refuse();
        std::size_t backslashes = 0;
        while (text[end - 1 - backslashes] == '\\') ++backslashes;
        if (backslashes % 2 == 0) return end + 1;
    }
}

/// The position after the value that begins at `begin`: of a comma or bracket that is not its own.
std::size_t endOfValue(std::string_view text, std::size_t begin) {
    std::size_t depth = 0;
    for (std::size_t i = begin; i < text.size();) {
        switch (text[i]) {
            case '"':
                i = endOfString(text, i);
                continue;
            case '[':
            case '{':
                ++depth;
                break;
            case ']':
            case '}':
                if (depth == 0) return i;
                --depth;
                break;
            case ',':
                if (depth == 0) return i;
                break;
            default:
                break;
        }
        ++i;
    }
    refuse();
}

std::string_view trimmedJson(std::string_view text) {
    const auto first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

}  // namespace

std::vector<std::string_view> jsonElements(std::string_view array) {
    array = trimmedJson(array);
    if (array.size() < 2 || !array.starts_with('[') || !array.ends_with(']')) refuse();
    std::vector<std::string_view> elements;
    for (std::size_t begin = 1;;) {
        const std::size_t end = endOfValue(array, begin);
        const auto element = trimmedJson(array.substr(begin, end - begin));
        const bool isLast = end == array.size() - 1;
        if (element.empty() && isLast && elements.empty()) return elements;
        if (element.empty() || (array[end] != ',') != isLast) refuse();
        elements.push_back(element);
        if (isLast) return elements;
        begin = end + 1;
    }
}

}  // namespace tamble
