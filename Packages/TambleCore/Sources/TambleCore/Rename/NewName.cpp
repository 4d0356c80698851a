#include <TambleCore/Rename/FindAndReplace.h>
#include <TambleCore/Rename/NewName.h>
#include <TambleCore/Support/NameFitting.h>
#include <TambleCore/Support/Text.h>

#include <algorithm>

#include <fmt/format.h>

namespace tamble {
namespace {

/// What is typed, as it may stand in the name of a file.
std::string typed(std::string_view text) {
    std::string result(text);
    std::ranges::replace(result, '/', '-');
    std::ranges::replace(result, '\0', '-');
    return result;
}

std::string withLetterCase(std::string stem, RenamePattern::LetterCase letterCase) {
    switch (letterCase) {
        case RenamePattern::LetterCase::unchanged:
            break;
        case RenamePattern::LetterCase::lower:
            return lowercased(stem);
        case RenamePattern::LetterCase::upper:
            return uppercased(stem);
        case RenamePattern::LetterCase::title:
            return titlecased(stem);
    }
    return stem;
}

/// Without a bound: the sum may be larger than either number's type.
std::string numberText(std::int64_t start, std::size_t index, int digits) {
    // More zeros than a name has room for need not be written to be too many.
    const int width = std::clamp(digits, 0, static_cast<int>(maximumNameLength) + 1);
    const auto distance = static_cast<std::uint64_t>(index);
    const auto magnitude = start < 0 ? 0 - static_cast<std::uint64_t>(start) : std::uint64_t{0};
    if (distance < magnitude) return fmt::format("-{:0{}}", magnitude - distance, width);
    return fmt::format("{:0{}}", static_cast<std::uint64_t>(start) + distance, width);
}

std::string numbered(std::string name, std::size_t index, const RenamePattern& pattern) {
    if (pattern.numbering == RenamePattern::Numbering::none) return name;
    const std::string number = numberText(pattern.startNumber, index, pattern.digits);
    const std::string separator = typed(pattern.separator);
    return pattern.numbering == RenamePattern::Numbering::before ? number + separator + name
                                                                 : name + separator + number;
}

std::string newExtension(std::string_view text) {
    std::string extension = typed(text);
    const auto isEnd = [](char c) { return c == '.' || c == ' '; };
    while (!extension.empty() && isEnd(extension.back())) extension.pop_back();
    extension.erase(0, std::min(extension.find_first_not_of(". "), extension.size()));
    return extension;
}

}  // namespace

NewName NewName::of(const std::string& currentName, std::size_t index, const RenamePattern& pattern) {
    const std::size_t dot = extensionStart(currentName);
    const auto* text = std::get_if<rename_base::Text>(&pattern.base);
    std::string stem = text != nullptr ? typed(text->value) : currentName.substr(0, dot);
    stem = withReplaced(stem, pattern.find, typed(pattern.replaceWith),
                        pattern.matchCase ? LetterMatching::exact : LetterMatching::ignoringCase);
    stem = withLetterCase(std::move(stem), pattern.letterCase);
    const std::string name = numbered(typed(pattern.prefix) + stem + typed(pattern.suffix), index, pattern);
    return {.stem = std::string(trimmed(name)),
            .extension = pattern.newExtension ? newExtension(*pattern.newExtension)
                                              : currentName.substr(std::min(dot + 1, currentName.size()))};
}

std::string NewName::whole() const {
    return extension.empty() ? stem : stem + "." + extension;
}

bool NewName::isEmpty() const {
    return stem.empty() || (extension.empty() && (stem == "." || stem == ".."));
}

}  // namespace tamble
