#pragma once

#include <TambleCore/Jobs/SaveLocation.h>

#include <chrono>
#include <optional>
#include <string>

namespace tamble {

/// The remembered choices of where to save.
struct SavePreferences {
    enum class Mode { nextToOriginal, oneFolder, replace };
    BOOST_DESCRIBE_NESTED_ENUM(Mode, nextToOriginal, oneFolder, replace)

    Mode mode = Mode::nextToOriginal;
    /// The chosen folder; a path whose bytes are not UTF-8 as its file URL.
    std::optional<std::string> folderPath;
    bool keepStructure = true;
    bool addDateFolder = false;
    ClashPolicy clashPolicy = ClashPolicy::addNumber;

    /// For jobs whose sources include folders: next to each original.
    static SavePreferences forFolders();
    /// For jobs made only of loose files: Downloads › Tamble › today's date.
    static SavePreferences forLooseFiles();

    std::optional<std::filesystem::path> folder() const;
    void setFolder(const std::filesystem::path& folder);

    /// `day` names the date folder.
    SaveLocation saveLocation(std::chrono::year_month_day day) const;

    friend bool operator==(const SavePreferences&, const SavePreferences&) = default;
};
BOOST_DESCRIBE_STRUCT(SavePreferences, (), (mode, folderPath, keepStructure, addDateFolder, clashPolicy))

/// The day of the user's calendar.
std::chrono::year_month_day today();

/// The folder named by the day, as in "2026-11-13".
std::filesystem::path dateFolder(const std::filesystem::path& folder, std::chrono::year_month_day day);

}  // namespace tamble
