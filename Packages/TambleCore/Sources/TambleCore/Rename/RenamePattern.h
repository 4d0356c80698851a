#pragma once

#include <TambleCore/Support/Settings/SettingsSchema.h>

namespace tamble {

/// What the stem of every new name starts from.
namespace rename_base {
/// Every file's name becomes this text.
struct Text {
    static constexpr std::string_view caseName = "text";
    std::string value;
    friend bool operator==(const Text&, const Text&) = default;
};
BOOST_DESCRIBE_STRUCT(Text, (), (value))
/// Each file keeps its name.
struct Keep {
    static constexpr std::string_view caseName = "keep";
    friend bool operator==(const Keep&, const Keep&) = default;
};
BOOST_DESCRIBE_STRUCT(Keep, (), ())
}  // namespace rename_base

/// How many files get new names: what people type.
struct RenamePattern {
    using Base = std::variant<rename_base::Text, rename_base::Keep>;
    enum class Numbering { none, before, after };
    BOOST_DESCRIBE_NESTED_ENUM(Numbering, none, before, after)
    enum class LetterCase { unchanged, lower, upper, title };
    BOOST_DESCRIBE_NESTED_ENUM(LetterCase, unchanged, lower, upper, title)

    static constexpr std::int64_t largestStartNumber = 999'999'999;
    static constexpr int mostDigits = 20;

    Base base = rename_base::Keep{};
    /// What to look for in the stem, and what replaces each occurrence; nothing when `find` is empty.
    std::string find = {};
    std::string replaceWith = {};
    /// Whether `find` must match upper and lower case exactly.
    bool matchCase = false;
    std::string prefix = {};
    std::string suffix = {};
    Numbering numbering = Numbering::none;
    /// The number of the first file.
    std::int64_t startNumber = 1;
    /// The least number of digits.
    int digits = 3;
    /// Between the number and the name.
    std::string separator = " ";
    /// Of the stem; prefix and suffix stay as they are typed.
    LetterCase letterCase = LetterCase::unchanged;
    /// Absent: each file keeps its own. Empty: none. Dots and spaces at its ends don't count.
    std::optional<std::string> newExtension = {};

    friend bool operator==(const RenamePattern&, const RenamePattern&) = default;
};
BOOST_DESCRIBE_STRUCT(RenamePattern, (),
                      (base, find, replaceWith, matchCase, prefix, suffix, numbering, startNumber, digits,
                       separator, letterCase, newExtension))

SettingsSchema renameSchema();

}  // namespace tamble
