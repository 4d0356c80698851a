#pragma once

#include <TambleCore/Images/ImageConverter.h>
#include <TambleCore/Jobs/FileProcessor.h>

namespace tamble {

/// The format that the output of an input of this type will have. A kept format that cannot be written
/// becomes JPEG for photographs (camera raw, JPEG XL, JPEG 2000) and PNG for the rest; a cut-out becomes PNG
/// where the chosen format would lose its see-through background.
ImageFormat targetFormat(const std::optional<ContentType>& type, const ImageJobSettings& settings);

/// Turns each photo into one new photo.
class ImageProcessor final : public FileProcessor {
  public:
    explicit ImageProcessor(ImageJobSettings settings, ImageConverter converter = {});

    ImageFormat targetFormat(const InputFile& file) const;

    std::string fileExtension() const override;
    std::string outputName(const InputFile& file) const override;
    std::optional<SkipReason> skipReason(const InputFile& file) const override;
    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override;
    bool canReplaceOriginals() const override { return true; }
    bool keepsModificationTime() const override;

    const ImageJobSettings& settings() const noexcept { return settings_; }

  private:
    ImageJobSettings settings_;
    ImageConverter converter_;
};

}  // namespace tamble
