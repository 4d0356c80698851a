#include <TambleCore/Rename/FindAndReplace.h>
#include <TambleCore/Support/Text.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

#include <unicode/brkiter.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

namespace tamble {
namespace {

/// A text in the form in which it is compared, and where each of its characters came from.
struct Comparable {
    /// Positions between two characters, in the form that is compared and in the text itself.
    struct Boundary {
        std::size_t compared = 0;
        std::size_t original = 0;
    };
    std::string text;
    /// Ascending, the beginning and the end included.
    std::vector<Boundary> boundaries;
};

std::string asBytes(std::string_view text, LetterMatching matching) {
    std::string bytes(text);
    if (matching == LetterMatching::exact) return bytes;
    for (char& c : bytes) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return bytes;
}

Comparable bytesOf(std::string_view text, LetterMatching matching) {
    Comparable result{.text = asBytes(text, matching), .boundaries = {}};
    for (std::size_t i = 0; i <= text.size(); ++i) result.boundaries.push_back({i, i});
    return result;
}

/// Canonical caseless matching (Unicode 3.13, D145), or canonical equivalence.
class ComparedForm {
  public:
    static std::optional<ComparedForm> with(LetterMatching matching) {
        UErrorCode status = U_ZERO_ERROR;
        ComparedForm form(matching, icu::Normalizer2::getNFDInstance(status));
        return U_SUCCESS(status) ? std::optional(form) : std::nullopt;
    }

    std::string of(const icu::UnicodeString& text) const {
        UErrorCode status = U_ZERO_ERROR;
        icu::UnicodeString form = nfd_->normalize(text, status);
        if (matching_ == LetterMatching::ignoringCase) {
            form = nfd_->normalize(form.foldCase(U_FOLD_CASE_DEFAULT), status);
        }
        std::string result;
        (U_SUCCESS(status) ? form : text).toUTF8String(result);
        return result;
    }

  private:
    ComparedForm(LetterMatching matching, const icu::Normalizer2* nfd) : matching_(matching), nfd_(nfd) {}

    LetterMatching matching_;
    const icu::Normalizer2* nfd_;
};

std::size_t lengthInUTF8(const icu::UnicodeString& text) {
    std::string bytes;
    return text.toUTF8String(bytes).size();
}

std::optional<Comparable> charactersOf(std::string_view text, const ComparedForm& form) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> characters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status)) return std::nullopt;
    const auto whole =
        icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
    characters->setText(whole);
    Comparable result;
    result.boundaries.push_back({});
    std::size_t original = 0;
    for (std::int32_t begin = 0, end = characters->next(); end != icu::BreakIterator::DONE;
         begin = end, end = characters->next()) {
        const auto character = whole.tempSubStringBetween(begin, end);
        result.text += form.of(character);
        original += lengthInUTF8(character);
        result.boundaries.push_back({result.text.size(), original});
    }
    return result;
}

std::string replaced(std::string_view text, const Comparable& comparable, const std::string& find,
                     std::string_view replacement) {
    std::string result;
    const auto& boundaries = comparable.boundaries;
    for (auto here = boundaries.begin(); here + 1 < boundaries.end();) {
        if (std::string_view(comparable.text).substr(here->compared).starts_with(find)) {
            const auto end = std::ranges::lower_bound(boundaries, here->compared + find.size(), {},
                                                      &Comparable::Boundary::compared);
            if (end != boundaries.end() && end->compared == here->compared + find.size()) {
                result += replacement;
                here = end;
                continue;
            }
        }
        const auto next = here + 1;
        result += text.substr(here->original, next->original - here->original);
        here = next;
    }
    return result;
}

}  // namespace

std::string withReplaced(std::string_view text, std::string_view find, std::string_view replacement,
                         LetterMatching matching) {
    // A text has no characters that are none.
    if (find.empty() || (isUTF8(text) && !isUTF8(find))) return std::string(text);
    const bool areCharacters = isUTF8(text) && !(isASCII(text) && isASCII(find));
    const auto form = areCharacters ? ComparedForm::with(matching) : std::nullopt;
    const auto characters = form ? charactersOf(text, *form) : std::nullopt;
    if (!characters) return replaced(text, bytesOf(text, matching), asBytes(find, matching), replacement);
    const auto unicode =
        icu::UnicodeString::fromUTF8(icu::StringPiece(find.data(), static_cast<std::int32_t>(find.size())));
    return replaced(text, *characters, form->of(unicode), replacement);
}

}  // namespace tamble
