#pragma once

#include <Tamble/Model/SharedFile.h>

#include <TambleCore/Jobs/SavePreferences.h>

namespace tamble {

/// What the program remembers for the user: one JSON file that several programs share. Every call reads or
/// merges into what the file holds by then.
class PreferencesStore {
  public:
    explicit PreferencesStore(std::filesystem::path fileURL = defaultFile());

    static std::filesystem::path defaultFile();

    /// For jobs whose sources include folders ("save.folders").
    SavePreferences saveFolders() const;
    /// For jobs made only of loose files ("save.looseFiles").
    SavePreferences saveLooseFiles() const;
    /// Whether a folder chosen for one job is remembered for the next ("save.rememberFolderChoice").
    bool rememberFolderChoice() const;

    /// These throw std::filesystem::filesystem_error when the file cannot be written.
    void setSaveFolders(const SavePreferences& preferences);
    void setSaveLooseFiles(const SavePreferences& preferences);
    void setRememberFolderChoice(bool remember);

  private:
    Json read() const;
    SavePreferences read(const char* key, SavePreferences otherwise) const;
    void set(const char* key, Json value) const;

    SharedFile file_;
};

}  // namespace tamble
