#pragma once

#include <TambleCore/Jobs/FileProcessor.h>
#include <TambleCore/PDF/PDFJobSettings.h>

namespace tamble {

/// Makes of each PDF a new one, or a folder of pieces or pictures.
class PDFProcessor final : public FileProcessor {
  public:
    PDFProcessor(PDFTool tool, PDFJobSettings settings) : tool_(tool), settings_(std::move(settings)) {}

    std::string fileExtension() const override;
    std::string outputName(const InputFile& file) const override;
    std::optional<SkipReason> skipReason(const InputFile&) const override { return std::nullopt; }
    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override;
    bool canReplaceOriginals() const override;
    bool keepsModificationTime() const override;
    WorkNeeds needs() const override;

  private:
    PDFTool tool_;
    PDFJobSettings settings_;
};

/// Makes one PDF of many PDFs and photos.
class PDFCombiner final : public FileCombiner {
  public:
    PDFCombiner(PDFTool tool, PDFJobSettings settings) : tool_(tool), settings_(std::move(settings)) {}

    std::string fileExtension() const override { return "pdf"; }
    std::string outputName(std::span<const InputFile> files) const override;
    void combine(std::span<const InputFile> files, const std::filesystem::path& destination,
                 const WorkContext& context) const override;
    WorkNeeds needs() const override;

  private:
    PDFTool tool_;
    PDFJobSettings settings_;
};

}  // namespace tamble
