#include <TambleCore/Support/Settings/SettingsSchema.h>
#include <TambleCore/Support/Text.h>

#include <fmt/format.h>

namespace tamble {

std::string SettingField::flag() const {
    return hint.flag.empty() ? kebabCase(name) : std::string(hint.flag);
}

const SettingField* SettingsSchema::fieldNamed(std::string_view name) const {
    const auto found = std::ranges::find(fields, name, &SettingField::name);
    return found == fields.end() ? nullptr : &*found;
}

Json SettingsSchema::merged(Json base, const Json& changes) const {
    if (!changes.is_object())
        throw SettingError("Settings are written as an object, as in {\"quality\": \"best\"}.");
    for (const auto& [name, value] : changes.items()) {
        const SettingField* field = fieldNamed(name);
        if (field == nullptr) {
            std::vector<std::string> names;
            for (const auto& known : fields) names.push_back(known.name);
            const std::string nearest = nearestWord(name, names);
            throw SettingError(
                fmt::format("There is no setting “{}”.{}", name,
                            nearest.empty() ? "" : fmt::format(" Did you mean “{}”?", nearest)));
        }
        if (value.is_null()) {
            base.erase(name);
            continue;
        }
        if (const auto& range = field->hint.range; range && value.is_number()) {
            if (value < range->first || value > range->second) {
                throw SettingError(
                    fmt::format("“{}” must be between {} and {}.", name, range->first, range->second));
            }
        }
        base[name] = value;
    }
    return base;
}

}  // namespace tamble
