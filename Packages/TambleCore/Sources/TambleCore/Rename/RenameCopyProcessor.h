#pragma once

#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Rename/RenameItem.h>

#include <span>
#include <unordered_map>

namespace tamble {

/// Copies each file under the name planned for it. One whose name is empty or too long fails; a name that is
/// taken is settled where it is saved.
class RenameCopyProcessor final : public FileProcessor {
  public:
    explicit RenameCopyProcessor(std::span<const RenameItem> plan);

    std::string fileExtension() const override { return {}; }
    std::string outputName(const InputFile& file) const override;
    std::optional<SkipReason> skipReason(const InputFile&) const override { return std::nullopt; }
    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override;
    bool canReplaceOriginals() const override { return false; }
    bool keepsModificationTime() const override { return true; }

  private:
    struct Name {
        std::string newName;
        std::optional<RenameItem::Problem> problem;
    };
    /// By the file's path.
    std::unordered_map<std::string, Name> names_;
    CopyThroughProcessor copy_;
};

}  // namespace tamble
