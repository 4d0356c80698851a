#pragma once

#include <TambleCore/Intake/FolderScanner.h>
#include <TambleCore/Jobs/FileProcessor.h>
#include <TambleCore/Jobs/FileRenamer.h>
#include <TambleCore/Jobs/Secrets.h>
#include <TambleCore/Support/Failure.h>
#include <TambleCore/Support/Json/JsonCoding.h>
#include <TambleCore/Support/Settings/OptionsPanel.h>
#include <TambleCore/Support/Settings/SettingsSchema.h>

#include <memory>
#include <variant>

namespace tamble {

/// What a tool makes of its settings: one output per input, one of all, or new names.
using ToolWork =
    std::variant<std::unique_ptr<FileProcessor>, std::unique_ptr<FileCombiner>, std::unique_ptr<FileRenamer>>;

/// What a tool does with the password among the Secrets.
enum class PasswordUse {
    none,
    opensInputs,  ///< only for inputs that are locked
    required,     ///< the tool is about it
    isNew,        ///< the tool sets it
};

/// Everything that running a tool takes, without knowing its settings record: each family lists its tools as
/// these values. Settings are the JSON form of the family's record; functions throw DecodeError for settings
/// that are not.
struct ToolDefinition {
    std::string id;
    Json defaults;
    SettingsSchema schema;
    OptionsPanel panel;
    ContentPredicate accepts;
    std::function<ToolWork(const Json& settings, const Secrets& secrets)> makeWork;
    /// The expected size in bytes of all outputs, from a few samples; nothing when it cannot be told.
    std::function<std::optional<std::int64_t>(std::span<const InputFile>, const Json& settings,
                                              std::stop_token)>
        estimate = {};
    PasswordUse password = PasswordUse::none;
    /// What has to be chosen before the tool can do anything: the failure that every item would end with;
    /// nothing when it can start.
    std::function<std::optional<Failure>(const Json& settings, const Secrets& secrets)> missing = {};

    /// `settings` brought into the full form of the record: decoded and encoded once.
    std::function<Json(const Json& settings)> normalized;

    /// The failure of an item whose file crashed, hung or exhausted the worker process that was reading it.
    Failure unreadable{"unreadable", "Couldn't open this file. It may be damaged."};
};

/// The definition of a tool whose settings are the described record `Settings`, with what only the tool
/// knows: how its work is made from them. The caller fills in the rest.
template <DescribedRecord Settings, typename Make>
ToolDefinition makeToolDefinition(std::string id, const Settings& defaults, Make make) {
    return {.id = std::move(id),
            .defaults = encodeJson(defaults),
            .schema = settingsSchema<Settings>({}),
            .makeWork = [make](const Json& settings, const Secrets& secrets) -> ToolWork {
                auto decoded = decodeJson<Settings>(settings);
                if constexpr (requires { decoded.password; }) decoded.password = secrets.password;
                return make(decoded);
            },
            .normalized = [](const Json& settings) { return encodeJson(decodeJson<Settings>(settings)); }};
}

}  // namespace tamble
