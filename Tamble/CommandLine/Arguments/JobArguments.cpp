#include <Tamble/CommandLine/Arguments/JobArguments.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>

#include <TambleCore/Jobs/SavePreferences.h>
#include <TambleCore/Support/PathKey.h>
#include <TambleCore/Support/Settings/SettingType.h>
#include <TambleCore/Support/Text.h>

#include <array>
#include <charconv>

#include <fmt/format.h>

namespace tamble {
namespace {

constexpr int mostJobs = 256;

/// A folder that does not exist yet may be a slip: "--save replac" must not become a folder.
void rejectSlip(const std::string& save) {
    constexpr std::array<std::string_view, 2> words{"next", "replace"};
    for (const auto word : words) {
        const bool isNear = editDistance(lowercased(save), word) <= word.size() / 4;
        if (isNear && !std::filesystem::exists(save)) {
            throw UsageError(
                fmt::format("--save: There is no folder “{}”. Did you mean “{}”? A new folder of that name "
                            "is written ./{}.",
                            save, word, save));
        }
    }
}

SavePreferences savePreferences(const ParsedArguments& arguments) {
    SavePreferences preferences = SavePreferences::forFolders();
    preferences.keepStructure = arguments.has("keep-structure");
    preferences.addDateFolder = arguments.has("date-folder");
    const std::string save = arguments.value("save").value_or("next");
    if (save == "next") {
        preferences.mode = SavePreferences::Mode::nextToOriginal;
    } else if (save == "replace") {
        preferences.mode = SavePreferences::Mode::replace;
    } else {
        rejectSlip(save);
        if (save.empty() || (std::filesystem::exists(save) && !std::filesystem::is_directory(save))) {
            throw UsageError(fmt::format("--save: “{}” is not a folder.", save));
        }
        preferences.mode = SavePreferences::Mode::oneFolder;
        preferences.setFolder(standardized(save));
    }
    const bool wantsFolder = preferences.keepStructure || preferences.addDateFolder;
    if (wantsFolder && preferences.mode != SavePreferences::Mode::oneFolder) {
        throw UsageError(fmt::format("--{} needs a folder to save into: --save DIR.",
                                     preferences.keepStructure ? "keep-structure" : "date-folder"));
    }
    return preferences;
}

ClashPolicy clashPolicy(const ParsedArguments& arguments) {
    const auto given = arguments.value("clash");
    if (!given) return ClashPolicy::addNumber;
    try {
        return decodeJson<ClashPolicy>(settingValue(settingType<ClashPolicy>(), *given));
    } catch (const SettingError& error) {
        throw UsageError(fmt::format("--clash: {}", error.what()));
    }
}

int concurrency(const ParsedArguments& arguments) {
    const auto given = arguments.value("jobs");
    if (!given) return JobConfiguration::defaultConcurrency();
    int jobs = 0;
    const auto [end, error] = std::from_chars(given->data(), given->data() + given->size(), jobs);
    if (error != std::errc() || end != given->data() + given->size() || jobs < 1 || jobs > mostJobs) {
        throw UsageError(fmt::format("--jobs: “{}” is not a number from 1 to {}.", *given, mostJobs));
    }
    return jobs;
}

}  // namespace

JobConfiguration jobConfiguration(const ParsedArguments& arguments) {
    const SavePreferences preferences = savePreferences(arguments);
    return {.location = preferences.saveLocation(today()),
            .clashPolicy = clashPolicy(arguments),
            .maxConcurrent = concurrency(arguments)};
}

}  // namespace tamble
