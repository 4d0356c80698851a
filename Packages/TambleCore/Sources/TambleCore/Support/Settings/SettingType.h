#pragma once

#include <TambleCore/Support/Json/Described.h>
#include <TambleCore/Support/Json/Json.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tamble {

enum class SettingKind { boolean, integer, number, text, file, enumeration, choice, record };

struct SettingCase;

/// The type of one setting, read off its declaration.
struct SettingType {
    SettingKind kind = SettingKind::boolean;
    bool isOptional = false;
    /// The cases of an enumeration, with their payloads where they carry one.
    std::vector<SettingCase> cases;
};

struct SettingCase {
    std::string name;
    /// Empty or one type: what follows "name:" in the text form.
    std::vector<SettingType> payload;
    /// What people also call it.
    std::vector<std::string> otherNames = {};
};

/// A value typed by a person that does not fit its setting; what() is a sentence.
class SettingError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The JSON value that `text` stands for: "true", "1920", "smaller", "convert:webp", "none" for an absent
/// optional. Throws SettingError, with the nearest right word when there is one.
Json settingValue(const SettingType& type, std::string_view text);

/// How a value of this type is written, for help: "true|false", "NUMBER",
/// "keepFormat|convert:webp|convert:jpeg".
std::string settingSyntax(const SettingType& type);

/// Every whole word that a value of this type can be, for completion; empty for numbers and texts.
std::vector<std::string> settingWords(const SettingType& type);

template <typename T>
struct IsList : std::false_type {};
template <typename T>
struct IsList<std::vector<T>> : std::true_type {};

template <typename T>
SettingType settingType() {
    if constexpr (Optional<T>) {
        SettingType type = settingType<typename T::value_type>();
        type.isOptional = true;
        return type;
    } else if constexpr (std::same_as<T, bool>) {
        return {.kind = SettingKind::boolean};
    } else if constexpr (std::integral<T>) {
        return {.kind = SettingKind::integer};
    } else if constexpr (std::floating_point<T>) {
        return {.kind = SettingKind::number};
    } else if constexpr (std::same_as<T, std::filesystem::path>) {
        return {.kind = SettingKind::file};
    } else if constexpr (std::same_as<T, std::string>) {
        return {.kind = SettingKind::text};
    } else if constexpr (DescribedEnum<T>) {
        SettingType type{.kind = SettingKind::enumeration};
        for (const T value : allCases<T>()) {
            SettingCase described{.name = std::string(caseName(value)), .payload = {}};
            // Declared beside an enumeration whose cases have several names.
            if constexpr (requires { otherNames(value); }) described.otherNames = otherNames(value);
            type.cases.push_back(std::move(described));
        }
        return type;
    } else if constexpr (CaseVariant<T>) {
        SettingType type{.kind = SettingKind::choice};
        boost::mp11::mp_for_each<boost::mp11::mp_transform<std::type_identity, T>>([&](auto identity) {
            using Case = typename decltype(identity)::type;
            SettingCase described{.name = std::string(Case::caseName), .payload = {}};
            boost::mp11::mp_for_each<MembersOf<Case>>([&](auto member) {
                using Payload = std::remove_cvref_t<decltype(std::declval<Case>().*member.pointer)>;
                described.payload.push_back(settingType<Payload>());
            });
            type.cases.push_back(std::move(described));
        });
        return type;
    } else {
        static_assert(DescribedRecord<T> || IsList<T>::value);
        return {.kind = SettingKind::record};
    }
}

}  // namespace tamble
