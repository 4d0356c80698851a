#pragma once

#include <Tamble/Model/JobRunner.h>

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Jobs/SavePreferences.h>

namespace tamble {

/// In which order a session's files stand.
enum class FileOrder { asDropped, byName, bySize, byKind };

/// One tool and everything that was chosen for its next job: what a screen shows and changes. Touches no
/// files.
class ToolSession {
  public:
    /// `tool` is one that can run here.
    explicit ToolSession(const ToolInfo& tool);

    const ToolInfo& info() const { return *info_; }
    const ToolDefinition& definition() const { return *definition_; }
    /// Whether the tool makes one file of all, and whether it gives files new names.
    bool combines() const { return shape_ == Shape::combiner; }
    bool renames() const { return shape_ == Shape::renamer; }
    bool canReplaceOriginals() const { return canReplace_; }
    /// Whether the order of the files matters: for the one output, or for the numbers in names.
    bool ordersFiles() const { return combines() || renames(); }

    /// Takes those of the files that the tool works with and that are not there yet; answers how many.
    std::size_t add(std::span<const InputFile> found);
    /// Indexes in any order.
    void remove(std::span<const std::size_t> indexes);
    void removeAll();
    /// `to` counts as if the file were gone from `from`.
    void move(std::size_t from, std::size_t to);
    void sort(FileOrder order);
    const std::vector<InputFile>& files() const { return files_; }
    std::int64_t inputBytes() const;
    /// Whether any of the files was found in a dropped folder.
    bool hasFolders() const;

    const Json& settings() const { return settings_; }
    /// Throws SettingError for what is no setting of the tool or out of its range.
    void change(const Json& changes);

    Secrets secrets = {};
    /// Where to save, and what to do on a name clash.
    SavePreferences save = {};
    RenameWay renameWay = RenameWay::inPlace;

    /// What has to be chosen before the job can start, as a sentence; empty when it can, but for files.
    std::string missing() const;

    /// `day` names the date folder; `maxConcurrent` of 0 stands for what suits the machine.
    JobOrder order(std::chrono::year_month_day day, int maxConcurrent) const;

  private:
    enum class Shape { processor, combiner, renamer };

    void examine();
    /// The files at these indexes, in this order.
    void arrange(std::span<const std::size_t> order);

    const ToolInfo* info_;
    const ToolDefinition* definition_;
    Shape shape_ = Shape::processor;
    bool canReplace_ = false;
    Json settings_;
    std::vector<InputFile> files_;
    /// When each file was added, counted.
    std::vector<std::uint64_t> added_;
    std::uint64_t nextNumber_ = 0;
};

}  // namespace tamble
