#include <TambleCore/PDF/Structure/Carrying/ObjectText.h>

#include <charconv>
#include <optional>

namespace tamble::pdf {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// White space and delimiters (ISO 32000-1, 7.2.2): what ends a name or a number.
bool endsToken(char c) {
    return std::string_view(" \t\r\n\f\0()<>[]{}/%", 16).find(c) != std::string_view::npos;
}

class Renumberer {
  public:
    Renumberer(std::string& result, std::string_view text, ObjectKind kind, const Renumbering& numbers,
               std::vector<QPDFObjGen>& references)
        : result_(result), text_(text), kind_(kind), numbers_(numbers), references_(references) {}

    void run() {
        while (at_ < text_.size()) step();
    }

  private:
    void step() {
        const char c = text_[at_];
        if (c == '(') return copyLiteral();
        if (c == '<' || c == '>') return copyAngle(c);
        if (c == '/') return takeName();
        if (isDigit(c) && isAtTokenStart()) return takeNumber();
        copy(at_ + 1);
    }

    bool isAtTokenStart() const { return at_ == 0 || endsToken(text_[at_ - 1]); }

    void copy(std::size_t end) {
        result_.append(text_, at_, end - at_);
        at_ = end;
    }

    void copyLiteral() {
        std::size_t end = at_;
        int depth = 0;
        do {
            if (text_[end] == '\\') {
                ++end;
            } else if (text_[end] == '(') {
                ++depth;
            } else if (text_[end] == ')') {
                --depth;
            }
            ++end;
        } while (depth > 0 && end < text_.size());
        copy(std::min(end, text_.size()));
    }

    void copyAngle(char c) {
        const bool isDouble = at_ + 1 < text_.size() && text_[at_ + 1] == c;
        if (isDouble) {
            depth_ += c == '<' ? 1 : -1;
            copy(at_ + 2);
        } else {
            copy(std::min(text_.find('>', at_), text_.size() - 1) + 1);
        }
    }

    void takeName() {
        std::size_t end = at_ + 1;
        while (end < text_.size() && !endsToken(text_[end])) ++end;
        const std::string_view name = text_.substr(at_, end - at_);
        if (kind_ == ObjectKind::streamDictionary && depth_ == 1 && name == "/Length") {
            at_ = end;
            skipNumberOrReference();
            return;
        }
        isTagKey_ = name == "/StructParents" || name == "/StructParent";
        copy(end);
    }

    void takeNumber() {
        if (const auto reference = referenceHere()) {
            if (numbers_.nothing.contains(reference->object.getObj())) {
                result_ += "null";
            } else {
                references_.push_back(reference->object);
                result_ += std::to_string(numbers_.numberOf(reference->object.getObj()));
                result_ += " 0 R";
            }
            at_ = reference->end;
        } else if (const auto number = integerAt(at_); isTagKey_ && number) {
            result_ += std::to_string(number->value + numbers_.tagOffset);
            at_ = number->end;
        } else {
            std::size_t end = at_ + 1;
            while (end < text_.size() && !endsToken(text_[end])) ++end;
            copy(end);
        }
        isTagKey_ = false;
    }

    void skipNumberOrReference() {
        while (at_ < text_.size() && text_[at_] == ' ') ++at_;
        if (const auto reference = referenceHere()) {
            at_ = reference->end;
            return;
        }
        while (at_ < text_.size() && !endsToken(text_[at_])) ++at_;
    }

    struct Integer {
        int value = 0;
        std::size_t end = 0;
    };
    std::optional<Integer> integerAt(std::size_t start) const {
        Integer number;
        const char* const begin = text_.data() + start;
        const auto [end, error] = std::from_chars(begin, text_.data() + text_.size(), number.value);
        number.end = static_cast<std::size_t>(end - text_.data());
        const bool isWhole = number.end == text_.size() || endsToken(text_[number.end]);
        if (error != std::errc() || !isWhole) return std::nullopt;
        return number;
    }

    struct Reference {
        QPDFObjGen object;
        std::size_t end = 0;
    };
    /// "12 0 R", as the library writes it.
    std::optional<Reference> referenceHere() const {
        const auto number = integerAt(at_);
        if (!number || number->end >= text_.size() || text_[number->end] != ' ') return std::nullopt;
        const auto generation = integerAt(number->end + 1);
        if (!generation || text_.substr(generation->end, 2) != " R") return std::nullopt;
        const std::size_t end = generation->end + 2;
        if (end < text_.size() && !endsToken(text_[end])) return std::nullopt;
        return Reference{QPDFObjGen(number->value, generation->value), end};
    }

    std::string& result_;
    std::string_view text_;
    ObjectKind kind_;
    const Renumbering& numbers_;
    std::vector<QPDFObjGen>& references_;
    std::size_t at_ = 0;
    int depth_ = 0;
    bool isTagKey_ = false;
};

}  // namespace

void appendRenumbered(std::string& result, std::string_view text, ObjectKind kind, const Renumbering& numbers,
                      std::vector<QPDFObjGen>& references) {
    Renumberer(result, text, kind, numbers, references).run();
}

}  // namespace tamble::pdf
