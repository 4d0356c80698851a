#pragma once

#include <TambleCore/Support/Base64.h>
#include <TambleCore/Support/FilePath.h>
#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/Json/Described.h>
#include <TambleCore/Support/Json/Json.h>

#include <concepts>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// JSON for every described record: keys are the field names, optional fields are left out when absent,
/// enumerations are their case names, enumerations with a payload are objects with one key, paths are file
/// URLs, bytes are Base64.
namespace tamble {

template <typename T>
concept PathValue = std::same_as<T, std::filesystem::path> || std::same_as<T, FilePath>;

template <typename T>
Json encodeJson(const T& value);

/// Throws DecodeError when the document does not hold a T.
template <typename T>
T decodeJson(const Json& document);

namespace detail {

template <typename T>
struct IsVector : std::false_type {};
template <typename T>
struct IsVector<std::vector<T>> : std::true_type {};
template <typename T>
struct IsStringMap : std::false_type {};
template <typename T>
struct IsStringMap<std::map<std::string, T>> : std::true_type {};
/// Paths as they are, not as file URLs.
template <typename T>
struct IsStringMap<std::map<FilePath, T>> : std::true_type {};

inline const std::string& memberName(const std::string& key) {
    return key;
}
inline const std::string& memberName(const FilePath& key) {
    return key.native();
}

inline std::string listed(const std::vector<std::string>& words) {
    std::string text;
    for (const auto& word : words) text += (text.empty() ? "" : ", ") + word;
    return text;
}

/// A case's payload without a label has the key "_0".
template <typename Record>
constexpr std::string_view memberKey(std::string_view memberName) {
    return DescribedCase<Record> && memberName == "value" ? std::string_view("_0") : memberName;
}

template <DescribedRecord T>
Json encodeRecord(const T& record) {
    Json object = Json::object();
    boost::mp11::mp_for_each<MembersOf<T>>([&](auto member) {
        const auto& field = record.*member.pointer;
        if constexpr (Optional<std::remove_cvref_t<decltype(field)>>) {
            if (!field) return;
        }
        object[std::string(memberKey<T>(member.name))] = encodeJson(field);
    });
    return object;
}

template <DescribedRecord T>
T decodeRecord(const Json& document) {
    if (!document.is_object()) throw DecodeError("An object was expected.");
    T record{};
    boost::mp11::mp_for_each<MembersOf<T>>([&](auto member) {
        auto& field = record.*member.pointer;
        using Field = std::remove_cvref_t<decltype(field)>;
        const std::string key(memberKey<T>(member.name));
        const auto found = document.find(key);
        if (found == document.end() || (Optional<Field> && found->is_null())) {
            if constexpr (!Optional<Field>) throw DecodeError("“" + key + "” is missing.");
            return;
        }
        try {
            field = decodeJson<Field>(*found);
        } catch (const DecodeError& error) {
            throw DecodeError("“" + key + "”: " + error.what());
        }
    });
    return record;
}

template <typename T, typename... Cases>
T decodeCase(const Json& document, const std::variant<Cases...>*) {
    if (!document.is_object() || document.size() != 1) {
        throw DecodeError("Invalid number of keys found, expected one.");
    }
    const std::string& name = document.begin().key();
    std::optional<T> result;
    boost::mp11::mp_for_each<boost::mp11::mp_list<std::type_identity<Cases>...>>([&](auto identity) {
        using Case = typename decltype(identity)::type;
        if (name == Case::caseName)
            result.emplace(std::in_place_type<Case>, decodeRecord<Case>(document.begin().value()));
    });
    if (!result) throw DecodeError("There is no case “" + name + "”.");
    return *result;
}

template <std::integral T>
T decodeInteger(const Json& document) {
    if (document.is_number_unsigned()) {
        if (const auto value = document.get<std::uint64_t>(); std::in_range<T>(value))
            return static_cast<T>(value);
        throw DecodeError("The number is too large.");
    }
    if (document.is_number_integer()) {
        if (const auto value = document.get<std::int64_t>(); std::in_range<T>(value))
            return static_cast<T>(value);
        throw DecodeError("The number is too large or too small.");
    }
    throw DecodeError("A whole number was expected.");
}

}  // namespace detail

template <typename T>
Json encodeJson(const T& value) {
    if constexpr (std::same_as<T, Json>) {
        return value;
    } else if constexpr (std::is_arithmetic_v<T> || std::same_as<T, std::string>) {
        return Json(value);
    } else if constexpr (PathValue<T>) {
        return Json(fileURL(value));
    } else if constexpr (DescribedEnum<T>) {
        return Json(std::string(caseName(value)));
    } else if constexpr (Optional<T>) {
        return value ? encodeJson(*value) : Json(nullptr);
    } else if constexpr (CaseVariant<T>) {
        return std::visit(
            [](const auto& chosen) {
                Json object = Json::object();
                object[std::string(std::remove_cvref_t<decltype(chosen)>::caseName)] =
                    detail::encodeRecord(chosen);
                return object;
            },
            value);
    } else if constexpr (std::same_as<T, std::vector<std::byte>>) {
        return Json(base64(value));
    } else if constexpr (detail::IsVector<T>::value) {
        Json array = Json::array();
        for (const auto& element : value) array.push_back(encodeJson(element));
        return array;
    } else if constexpr (detail::IsStringMap<T>::value) {
        // Appended, not looked up: an ordered object searches linearly.
        Json object = Json::object();
        auto& members = object.get_ref<Json::object_t&>();
        for (const auto& [key, element] : value)
            members.push_back({detail::memberName(key), encodeJson(element)});
        return object;
    } else {
        static_assert(DescribedRecord<T>, "describe the record with BOOST_DESCRIBE_STRUCT");
        return detail::encodeRecord(value);
    }
}

template <typename T>
T decodeJson(const Json& document) {
    if constexpr (std::same_as<T, Json>) {
        return document;
    } else if constexpr (std::same_as<T, bool>) {
        if (!document.is_boolean()) throw DecodeError("true or false was expected.");
        return document.get<bool>();
    } else if constexpr (std::integral<T>) {
        return detail::decodeInteger<T>(document);
    } else if constexpr (std::floating_point<T>) {
        if (!document.is_number()) throw DecodeError("A number was expected.");
        return document.get<T>();
    } else if constexpr (std::same_as<T, std::string>) {
        if (!document.is_string()) throw DecodeError("A text was expected.");
        return document.get<std::string>();
    } else if constexpr (PathValue<T>) {
        auto path =
            document.is_string() ? pathFromFileURL(document.get_ref<const std::string&>()) : std::nullopt;
        if (!path) throw DecodeError("A file URL was expected.");
        return std::move(*path);
    } else if constexpr (DescribedEnum<T>) {
        const auto value =
            document.is_string() ? caseNamed<T>(document.get_ref<const std::string&>()) : std::nullopt;
        if (!value) throw DecodeError("One of these was expected: " + detail::listed(caseNames<T>()) + ".");
        return *value;
    } else if constexpr (Optional<T>) {
        return document.is_null() ? T{} : T(decodeJson<typename T::value_type>(document));
    } else if constexpr (CaseVariant<T>) {
        return detail::decodeCase<T>(document, static_cast<const T*>(nullptr));
    } else if constexpr (std::same_as<T, std::vector<std::byte>>) {
        auto bytes =
            document.is_string() ? bytesFromBase64(document.get_ref<const std::string&>()) : std::nullopt;
        if (!bytes) throw DecodeError("A text in Base64 was expected.");
        return std::move(*bytes);
    } else if constexpr (detail::IsVector<T>::value) {
        if (!document.is_array()) throw DecodeError("A list was expected.");
        T result;
        result.reserve(document.size());
        for (const auto& element : document) result.push_back(decodeJson<typename T::value_type>(element));
        return result;
    } else if constexpr (detail::IsStringMap<T>::value) {
        if (!document.is_object()) throw DecodeError("An object was expected.");
        T result;
        for (const auto& [key, element] : document.items()) {
            result.emplace(key, decodeJson<typename T::mapped_type>(element));
        }
        return result;
    } else {
        static_assert(DescribedRecord<T>, "describe the record with BOOST_DESCRIBE_STRUCT");
        return detail::decodeRecord<T>(document);
    }
}

}  // namespace tamble
