#pragma once

#include <TambleCore/Jobs/Renaming/PlannedRename.h>

#include <filesystem>
#include <set>
#include <string>

namespace tamble {

/// The jobs whose undo has begun and not ended, on disk beside the activity log: a mark that is found is of
/// an undo during which the program died. To be used by whoever holds the lock of undoing.
class UndoMarks {
  public:
    explicit UndoMarks(const std::filesystem::path& activityFile);

    bool contain(const std::string& id) const { return ids_.contains(id); }
    /// `wayBack`: how files get their old names. A mark that cannot be written is logged, and no reason not
    /// to undo.
    void add(const std::string& id, std::span<const PlannedRename> wayBack);
    /// As it was added with the mark. Empty when there is none, or none that can be read.
    std::vector<PlannedRename> wayBack(const std::string& id) const;
    void remove(const std::string& id);

  private:
    void save() const;
    std::filesystem::path wayBackFile(const std::string& id) const;

    std::filesystem::path file_;
    std::set<std::string> ids_;
};

}  // namespace tamble
