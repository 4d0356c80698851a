#include <TambleCore/Support/NameFitting.h>
#include <TambleCore/Support/Text.h>

#include <cstdint>
#include <memory>

#include <unicode/brkiter.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

namespace tamble {
namespace {

struct CloseText {
    void operator()(UText* text) const { utext_close(text); }
};

/// The longest beginning of at most `limit` bytes that ends between two characters. Bytes that are not UTF-8
/// may be cut anywhere.
std::string_view cut(std::string_view text, std::size_t limit) {
    if (text.size() <= limit) return text;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UText, CloseText> opened(
        utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status));
    const std::unique_ptr<icu::BreakIterator> characters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status)) return text.substr(0, limit);
    characters->setText(opened.get(), status);
    if (U_FAILURE(status)) return text.substr(0, limit);
    // The iterator steps back from the beginning of a code point only.
    auto end = static_cast<std::int32_t>(limit);
    U8_SET_CP_START(reinterpret_cast<const std::uint8_t*>(text.data()), 0, end);
    const std::int32_t boundary = characters->isBoundary(end) ? end : characters->preceding(end);
    // One "character" of more than the limit: a heap of combining marks.
    if (boundary <= 0) return text.substr(0, limit);
    return text.substr(0, static_cast<std::size_t>(boundary));
}

std::string_view withoutEndingSpaces(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? text : text.substr(0, last + 1);
}

}  // namespace

std::string fittedName(std::string_view stem, std::string_view tail, std::size_t limit) {
    if (stem.size() + tail.size() <= limit) return std::string(stem) + std::string(tail);
    const std::size_t room = tail.size() < limit ? limit - tail.size() : 0;
    std::string name(withoutEndingSpaces(cut(stem, room)));
    name += cut(tail, limit - name.size());
    return name;
}

std::size_t extensionStart(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || dot + 1 == name.size()) return name.size();
    return dot;
}

}  // namespace tamble
