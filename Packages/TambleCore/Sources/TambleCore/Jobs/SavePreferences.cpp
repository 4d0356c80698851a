#include <TambleCore/Jobs/SavePreferences.h>
#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Support/Text.h>

#include <ctime>

#include <fmt/format.h>

namespace tamble {

SavePreferences SavePreferences::forFolders() {
    return {};
}

SavePreferences SavePreferences::forLooseFiles() {
    return {.mode = Mode::oneFolder, .addDateFolder = true};
}

std::optional<std::filesystem::path> SavePreferences::folder() const {
    if (!folderPath) return std::nullopt;
    if (auto path = pathFromFileURL(*folderPath)) return path;
    return std::filesystem::path(*folderPath);
}

void SavePreferences::setFolder(const std::filesystem::path& folder) {
    const bool isText = printable(folder.native()) == folder.native();
    folderPath = isText ? folder.native() : fileURL(folder);
}

SaveLocation SavePreferences::saveLocation(std::chrono::year_month_day day) const {
    switch (mode) {
        case Mode::nextToOriginal:
            return location::NextToOriginal{};
        case Mode::replace:
            return location::ReplaceOriginals{};
        case Mode::oneFolder:
            break;
    }
    const auto chosen = folder();
    const std::filesystem::path base = chosen ? *chosen : folders::downloads() / "Tamble";
    return location::Folder{.value = addDateFolder ? dateFolder(base, day) : base,
                            .keepStructure = keepStructure};
}

std::chrono::year_month_day today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return {std::chrono::year(local.tm_year + 1900),
            std::chrono::month(static_cast<unsigned>(local.tm_mon) + 1),
            std::chrono::day(static_cast<unsigned>(local.tm_mday))};
}

std::filesystem::path dateFolder(const std::filesystem::path& folder, std::chrono::year_month_day day) {
    return folder /
           fmt::format("{:04}-{:02}-{:02}", int{day.year()}, unsigned{day.month()}, unsigned{day.day()});
}

}  // namespace tamble
