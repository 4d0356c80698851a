#pragma once

#include <TambleCore/Jobs/FileRenamer.h>
#include <TambleCore/Rename/RenamePattern.h>

namespace tamble {

/// Gives files new names by a pattern.
class Renamer final : public FileRenamer {
  public:
    explicit Renamer(RenamePattern pattern) : pattern_(std::move(pattern)) {}

    std::vector<PlannedName> plan(std::span<const InputFile> files, RenameWay way) const override;
    JobResult renameInPlace(std::vector<InputFile> files, const JobEngine& engine,
                            const ProgressCallback& onProgress, std::stop_token stop) const override;
    std::unique_ptr<FileProcessor> copier(std::span<const InputFile> files) const override;

  private:
    RenamePattern pattern_;
};

}  // namespace tamble
