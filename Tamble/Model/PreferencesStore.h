#pragma once

#include <Tamble/Model/SharedFile.h>
#include <Tamble/Model/ToolUse.h>

#include <TambleCore/Jobs/SavePreferences.h>

namespace tamble {

enum class Appearance { system, light, dark };
BOOST_DESCRIBE_ENUM(Appearance, system, light, dark)

/// In logical pixels.
struct WindowSize {
    int width = 0;
    int height = 0;
    bool isMaximized = false;
    friend bool operator==(const WindowSize&, const WindowSize&) = default;
};
BOOST_DESCRIBE_STRUCT(WindowSize, (), (width, height, isMaximized))

/// What the program remembers for the user: one JSON file that several programs share. Every call reads or
/// merges into what the file holds by then. What cannot be read counts as never set.
class PreferencesStore {
  public:
    explicit PreferencesStore(std::filesystem::path fileURL = defaultFile());

    static std::filesystem::path defaultFile();
    static constexpr int mostAtOnce = 16;

    /// For jobs whose sources include folders ("save.folders").
    SavePreferences saveFolders() const;
    /// For jobs made only of loose files ("save.looseFiles").
    SavePreferences saveLooseFiles() const;
    /// Whether a folder chosen for one job is remembered for the next ("save.rememberFolderChoice").
    bool rememberFolderChoice() const;

    /// "window.appearance".
    Appearance appearance() const;
    /// "window.size"; empty when there is none yet or it is none of a window.
    std::optional<WindowSize> windowSize() const;
    /// Whether people are told when a job is done ("jobs.notifyWhenDone").
    bool notifyWhenDone() const;
    /// How many items are worked on at the same time, up to mostAtOnce; 0 when the machine decides
    /// ("jobs.atOnce").
    int atOnce() const;
    /// The program that reads sound and video ("helpers.media"), and the file of the network that finds
    /// subjects ("helpers.subjectModel"); empty for the usual ones.
    std::filesystem::path mediaHelper() const;
    std::filesystem::path subjectModel() const;

    /// What popularTools() goes by ("tools.uses").
    std::vector<ToolUse> toolUses() const;

    /// These throw std::filesystem::filesystem_error when the file cannot be written. One that is there and
    /// is no JSON object is moved aside.
    void setSaveFolders(const SavePreferences& preferences);
    void setSaveLooseFiles(const SavePreferences& preferences);
    void setRememberFolderChoice(bool remember);
    void setAppearance(Appearance appearance);
    void setWindowSize(const WindowSize& size);
    void setNotifyWhenDone(bool notify);
    void setAtOnce(int items);
    void setMediaHelper(const std::filesystem::path& program);
    void setSubjectModel(const std::filesystem::path& file);
    void countUse(const std::string& toolID, std::chrono::system_clock::time_point now);

  private:
    Json read() const;
    std::optional<Json> onDisk() const;
    template <typename T>
    T value(const char* key, T otherwise) const;
    template <typename T>
    void set(const char* key, const T& value);
    void setPath(const char* key, const std::filesystem::path& path);
    void update(const std::function<void(Json& document)>& change);

    SharedFile file_;
};

}  // namespace tamble
