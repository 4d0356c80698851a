#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include <boost/describe.hpp>
#include <boost/mp11.hpp>

namespace tamble {

/// An enumeration whose cases are described once with BOOST_DESCRIBE_ENUM or BOOST_DESCRIBE_NESTED_ENUM.
template <typename T>
concept DescribedEnum = std::is_enum_v<T> && boost::describe::has_describe_enumerators<T>::value;

/// A record whose fields are described once with BOOST_DESCRIBE_STRUCT.
template <typename T>
concept DescribedRecord = std::is_class_v<T> && boost::describe::has_describe_members<T>::value;

/// One case of an enumeration with a payload: a described record that knows its case's name. A payload
/// without a label is the member `value`.
template <typename T>
concept DescribedCase = DescribedRecord<T> && requires {
    { T::caseName } -> std::convertible_to<std::string_view>;
};

template <typename T>
struct IsOptional : std::false_type {};
template <typename T>
struct IsOptional<std::optional<T>> : std::true_type {};
template <typename T>
concept Optional = IsOptional<T>::value;

template <typename T>
struct IsCaseVariant : std::false_type {};
template <DescribedCase... Cases>
struct IsCaseVariant<std::variant<Cases...>> : std::true_type {};
/// An enumeration with a payload: a variant of described cases.
template <typename T>
concept CaseVariant = IsCaseVariant<T>::value;

template <typename T>
using MembersOf = boost::describe::describe_members<T, boost::describe::mod_public>;

template <DescribedEnum T>
constexpr std::string_view caseName(T value) {
    std::string_view name = "";
    boost::mp11::mp_for_each<boost::describe::describe_enumerators<T>>([&](auto enumerator) {
        if (enumerator.value == value) name = enumerator.name;
    });
    return name;
}

template <DescribedEnum T>
std::optional<T> caseNamed(std::string_view name) {
    std::optional<T> found;
    boost::mp11::mp_for_each<boost::describe::describe_enumerators<T>>([&](auto enumerator) {
        if (name == enumerator.name) found = enumerator.value;
    });
    return found;
}

/// All cases in the order of the enumeration.
template <DescribedEnum T>
std::vector<T> allCases() {
    std::vector<T> cases;
    boost::mp11::mp_for_each<boost::describe::describe_enumerators<T>>(
        [&](auto enumerator) { cases.push_back(enumerator.value); });
    return cases;
}

template <DescribedEnum T>
std::vector<std::string> caseNames() {
    std::vector<std::string> names;
    for (const T value : allCases<T>()) names.emplace_back(caseName(value));
    return names;
}

}  // namespace tamble
