#pragma once

#include <TambleCore/Support/Json/JsonCoding.h>

#include <fmt/format.h>

namespace tamble {

/// Appends what writeJson(encodeJson(value)) answers, without a document in between: for records that hold
/// many.
template <typename T>
void appendJson(std::string& text, const T& value) {
    [[maybe_unused]] auto separate = [&text, isFirst = true]() mutable {
        if (!std::exchange(isFirst, false)) text += ',';
    };
    if constexpr (PathValue<T>) {
        // Percent-encoded, so that nothing in it needs escaping.
        text.append(1, '"').append(fileURL(value)).append(1, '"');
    } else if constexpr (std::integral<T> && !std::same_as<T, bool>) {
        fmt::format_to(std::back_inserter(text), "{}", value);
    } else if constexpr (detail::IsVector<T>::value) {
        text += '[';
        for (const auto& element : value) {
            separate();
            appendJson(text, element);
        }
        text += ']';
    } else if constexpr (detail::IsStringMap<T>::value) {
        text += '{';
        for (const auto& [key, element] : value) {
            separate();
            text.append(writeJson(Json(detail::memberName(key)))).append(1, ':');
            appendJson(text, element);
        }
        text += '}';
    } else if constexpr (DescribedRecord<T>) {
        text += '{';
        boost::mp11::mp_for_each<MembersOf<T>>([&](auto member) {
            const auto& field = value.*member.pointer;
            constexpr bool isOptional = Optional<std::remove_cvref_t<decltype(field)>>;
            if constexpr (isOptional) {
                if (!field) return;
            }
            separate();
            text.append(1, '"').append(detail::memberKey<T>(member.name)).append("\":");
            if constexpr (isOptional) {
                appendJson(text, *field);
            } else {
                appendJson(text, field);
            }
        });
        text += '}';
    } else if constexpr (CaseVariant<T>) {
        std::visit(
            [&](const auto& chosen) {
                constexpr auto name = std::remove_cvref_t<decltype(chosen)>::caseName;
                text.append("{\"").append(name).append("\":");
                appendJson(text, chosen);
                text += '}';
            },
            value);
    } else {
        text += writeJson(encodeJson(value));
    }
}

}  // namespace tamble
