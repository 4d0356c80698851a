#pragma once

#include <TambleCore/Support/Settings/SettingType.h>

#include <span>

namespace tamble {

/// What a record says about one of its fields beyond its type.
struct SettingHint {
    std::string_view field;
    std::string_view help;
    /// The inclusive bounds of a number.
    std::optional<std::pair<std::int64_t, std::int64_t>> range = {};
    /// The short flag people expect, as "to" for "output", and the case its value is a payload of, if any.
    std::string_view shortFlag = {};
    std::string_view shortCase = {};
    /// The option's spelling, when it is not the field's name.
    std::string_view flag = {};
    /// A field without an option of its own can still be given as JSON.
    bool isOffered = true;
    /// For values with a notation of their own: the new value, made of what was typed and the present value
    /// (null when it is absent). Throws SettingError.
    Json (*parse)(std::string_view text, const Json& present) = nullptr;
    /// How that notation is written, for help.
    std::string_view syntax = {};
};

/// One field of a settings record: everything that flags, help, completion and validation need to know of it.
struct SettingField {
    std::string name;
    SettingType type;
    SettingHint hint;

    /// The command-line spelling without the dashes: "max-pixel-size".
    std::string flag() const;
};

/// The fields of a settings record, in its order, and what can be done with its JSON form without knowing its
/// type.
struct SettingsSchema {
    std::vector<SettingField> fields;

    const SettingField* fieldNamed(std::string_view name) const;
    /// `base` with the members of `changes` in place of its own; a null member removes an optional one.
    /// Throws SettingError for a member that is no field (naming the nearest) and for a number outside its
    /// range.
    Json merged(Json base, const Json& changes) const;
};

/// Builds the schema of a described record; `hints` may name any of its fields, in any order.
template <DescribedRecord Record>
SettingsSchema settingsSchema(std::span<const SettingHint> hints) {
    SettingsSchema schema;
    boost::mp11::mp_for_each<MembersOf<Record>>([&](auto member) {
        using Field = std::remove_cvref_t<decltype(std::declval<Record>().*member.pointer)>;
        SettingField field{.name = member.name, .type = settingType<Field>(), .hint = {}};
        for (const auto& hint : hints) {
            if (hint.field == field.name) field.hint = hint;
        }
        schema.fields.push_back(std::move(field));
    });
    return schema;
}

}  // namespace tamble
