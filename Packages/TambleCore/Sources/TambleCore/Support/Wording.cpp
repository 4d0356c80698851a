#include <TambleCore/Support/Wording.h>

#include <array>
#include <utility>

namespace tamble {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 4> overrides{{
    {"This Mac", "This computer"},
    {"this Mac", "this computer"},
    {"Your Mac", "Your computer"},
    {"your Mac", "your computer"},
}};

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

}  // namespace

std::string localized(std::string_view text) {
    std::string result(text);
    for (const auto& [phrase, replacement] : overrides) {
        for (std::size_t at = 0; (at = result.find(phrase, at)) != std::string::npos;) {
            const std::size_t end = at + phrase.size();
            const bool isWholeWord =
                (at == 0 || !isLetter(result[at - 1])) && (end == result.size() || !isLetter(result[end]));
            if (isWholeWord) result.replace(at, phrase.size(), replacement);
            at += isWholeWord ? replacement.size() : phrase.size();
        }
    }
    return result;
}

}  // namespace tamble
