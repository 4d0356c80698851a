#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/Settings/SettingType.h>
#include <TambleCore/Support/Text.h>

#include <charconv>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace tamble {
namespace {

template <typename Number>
Json numberValue(std::string_view text, std::string_view expected) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw SettingError(fmt::format("“{}” is not {}.", printable(text), expected));
    }
    return Json(number);
}

Json booleanValue(std::string_view text) {
    if (text == "true" || text == "yes" || text == "on" || text == "1") return Json(true);
    if (text == "false" || text == "no" || text == "off" || text == "0") return Json(false);
    throw SettingError(fmt::format("“{}” is neither true nor false.", printable(text)));
}

Json caseValue(const SettingType& type, std::string_view text) {
    const auto colon = text.find(':');
    const std::string_view name = text.substr(0, colon);
    for (const auto& candidate : type.cases) {
        const auto& others = candidate.otherNames;
        if (candidate.name != name && std::ranges::find(others, name) == others.end()) continue;
        const bool hasText = colon != std::string_view::npos;
        if (hasText == candidate.payload.empty()) {
            throw SettingError(hasText ? fmt::format("“{}” takes no value.", name)
                                       : fmt::format("“{}” needs a value, as in {}:{}.", name, name,
                                                     settingSyntax(candidate.payload.front())));
        }
        if (type.kind == SettingKind::enumeration) return Json(candidate.name);
        Json payload = Json::object();
        if (hasText) payload["_0"] = settingValue(candidate.payload.front(), text.substr(colon + 1));
        Json object = Json::object();
        object[candidate.name] = std::move(payload);
        return object;
    }
    std::vector<std::string> names;
    for (const auto& candidate : type.cases) names.push_back(candidate.name);
    const std::string nearest = nearestWord(name, names);
    throw SettingError(nearest.empty()
                           ? fmt::format("“{}” is not one of: {}.", printable(text), fmt::join(names, ", "))
                           : fmt::format("“{}” is not one of: {}. Did you mean “{}”?", printable(text),
                                         fmt::join(names, ", "), nearest));
}

}  // namespace

Json settingValue(const SettingType& type, std::string_view text) {
    if (type.isOptional && text == "none") return Json(nullptr);
    switch (type.kind) {
        case SettingKind::boolean:
            return booleanValue(text);
        case SettingKind::integer:
            return numberValue<std::int64_t>(text, "a whole number");
        case SettingKind::number:
            return numberValue<double>(text, "a number");
        case SettingKind::text:
            return Json(std::string(text));
        case SettingKind::file:
            return Json(fileURL(std::string(text)));
        case SettingKind::enumeration:
        case SettingKind::choice:
            return caseValue(type, text);
        case SettingKind::record:
            break;
    }
    try {
        return parseJson(text);
    } catch (const DecodeError& error) {
        throw SettingError(error.what());
    }
}

std::vector<std::string> settingWords(const SettingType& type) {
    if (type.kind == SettingKind::boolean) return {"true", "false"};
    std::vector<std::string> words;
    for (const auto& candidate : type.cases) {
        if (candidate.payload.empty()) {
            words.push_back(candidate.name);
            continue;
        }
        for (const auto& word : settingWords(candidate.payload.front()))
            words.push_back(candidate.name + ":" + word);
    }
    return words;
}

std::string settingSyntax(const SettingType& type) {
    switch (type.kind) {
        case SettingKind::boolean:
        case SettingKind::enumeration:
            return fmt::format("{}", fmt::join(settingWords(type), "|"));
        case SettingKind::integer:
        case SettingKind::number:
            return "NUMBER";
        case SettingKind::text:
            return "TEXT";
        case SettingKind::file:
            return "FILE";
        case SettingKind::record:
            return "JSON";
        case SettingKind::choice:
            break;
    }
    std::vector<std::string> forms;
    for (const auto& candidate : type.cases) {
        forms.push_back(candidate.payload.empty()
                            ? candidate.name
                            : fmt::format("{}:{}", candidate.name, settingSyntax(candidate.payload.front())));
    }
    return fmt::format("{}", fmt::join(forms, " or "));
}

}  // namespace tamble
