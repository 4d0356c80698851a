#pragma once

#include <TambleCore/Jobs/FolderContents.h>
#include <TambleCore/Jobs/JobPlan.h>
#include <TambleCore/Jobs/NameResolver.h>
#include <TambleCore/Jobs/OutputPlanner.h>

#include <span>

namespace tamble {

/// Settles where the outputs of one job go and what goes to the Bin for them, one after the other, as if each
/// had been saved when the next is asked for. Reads folders, changes nothing.
class SavePlanner {
  public:
    enum class Originals { mayBeReplaced, stay };

    /// With Originals::stay no input of the job is ever planned to go to the Bin.
    SavePlanner(SaveLocation location, ClashPolicy policy, Originals originals,
                std::span<const InputFile> files);

    using Decision = std::variant<Placement, outcome::Skipped>;
    Decision next(const InputFile& file, const std::string& outputName);

    /// A free numbered place for an output that cannot have its planned one.
    std::filesystem::path numberedInstead(const std::filesystem::path& target);
    /// The disk is not as planned: something stands there after all.
    void noteExisting(const std::filesystem::path& path) { contents_.add(path); }

  private:
    std::optional<std::filesystem::path> originalToTrash(const InputFile& file) const;
    bool mustStay(const std::filesystem::path& existing, const std::filesystem::path& target) const;
    void plan(const Placement& placement);
    void useFoldersAbove(const std::filesystem::path& path);
    ExistsTest existsTest();

    OutputPlanner outputs_;
    ClashPolicy policy_;
    Originals originals_;
    FolderContents contents_;
    NameResolver names_;
    /// What the job sends to the Bin: never asked for twice.
    std::unordered_set<std::string> trashed_;
    /// The inputs, and the folders that hold an input or an output of the job: known where files may be
    /// replaced.
    std::unordered_set<std::string> inputs_;
    std::unordered_set<std::string> foldersInUse_;
};

}  // namespace tamble
