#pragma once

#include <TambleCore/Jobs/FileProcessor.h>

namespace tamble {

/// Copies each input unchanged.
class CopyThroughProcessor final : public FileProcessor {
  public:
    std::string fileExtension() const override { return {}; }
    std::string outputName(const InputFile& file) const override;
    std::optional<SkipReason> skipReason(const InputFile&) const override { return std::nullopt; }
    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override;
    bool canReplaceOriginals() const override { return true; }
    bool keepsModificationTime() const override { return true; }
};

}  // namespace tamble
