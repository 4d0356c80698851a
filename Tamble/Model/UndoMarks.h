#pragma once

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
    /// A mark that cannot be written is logged, and no reason not to undo.
    void add(const std::string& id);
    void remove(const std::string& id);

  private:
    void save() const;

    std::filesystem::path file_;
    std::set<std::string> ids_;
};

}  // namespace tamble
