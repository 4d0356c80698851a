#include <TambleCore/Images/ImageConverter.h>
#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/PDF/PDFEngine.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/Previews/PreviewFiles.h>
#include <TambleCore/Previews/PreviewTools.h>

#include <algorithm>

namespace tamble {
namespace {

/// Of processor time: photos of 100 megapixels take a few seconds. No progress is told meanwhile, so this is
/// for all of it.
constexpr std::chrono::seconds longestForPhoto{30};
/// As for the tools that work on PDFs; drawing a page has a limit of its own.
constexpr WorkNeeds pageNeeds{
    .startsPrograms = true, .memory = std::uint64_t{1} << 30U, .silence = std::chrono::seconds(25)};

PreviewPicture shown(Raster raster) {
    return {raster.width, raster.height, raster.channels, std::move(raster.samples)};
}

/// Documents can say anything; one page beyond all sense is no reason to list none.
double listed(double side) {
    constexpr double least = 1e-3;
    constexpr double most = 1e9;
    return std::clamp(side, least, most);
}

class PreviewProcessor : public FileProcessor {
  public:
    std::string fileExtension() const override { return "preview"; }
    std::string outputName(const InputFile&) const override { return "0.preview"; }
    std::optional<SkipReason> skipReason(const InputFile&) const override { return std::nullopt; }
    bool canReplaceOriginals() const override { return false; }
};

class PhotoPreview final : public PreviewProcessor {
  public:
    explicit PhotoPreview(const PhotoPreviewSettings& settings) : settings_(settings) {}

    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        PreviewFiles::write(destination,
                            shown(ImageConverter().picture(file.url, settings_.maxPixelSize,
                                                           {.progress = {}, .stop = context.stop})));
    }
    WorkNeeds needs() const override { return {.silence = longestForPhoto}; }

  private:
    PhotoPreviewSettings settings_;
};

class PageList final : public PreviewProcessor {
  public:
    explicit PageList(PageListSettings settings) : settings_(std::move(settings)) {}

    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext&) const override {
        std::vector<PreviewPage> pages;
        for (const auto& size : pdfEngine().pageSizes(file.url, settings_.password))
            pages.push_back({listed(size.width), listed(size.height)});
        PreviewFiles::write(destination, pages);
    }
    WorkNeeds needs() const override { return pageNeeds; }

  private:
    PageListSettings settings_;
};

class PagePreview final : public PreviewProcessor {
  public:
    explicit PagePreview(PagePreviewSettings settings) : settings_(std::move(settings)) {}

    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        std::filesystem::create_directory(destination);
        pdfEngine().drawPages(
            {file.url, settings_.password, settings_.first, settings_.count, settings_.pixelSize},
            [&](int page, Raster picture) {
                const auto place = destination / std::to_string(page);
                const auto unfinished = destination / (std::to_string(page) + ".part");
                PreviewFiles::write(unfinished, shown(std::move(picture)));
                std::filesystem::rename(unfinished, place);
            },
            context);
    }
    WorkNeeds needs() const override { return pageNeeds; }

  private:
    PagePreviewSettings settings_;
};

template <typename Processor, typename Settings>
ToolDefinition definition(std::string id, ContentPredicate accepts, Failure unreadable) {
    auto tool = makeToolDefinition(std::move(id), Settings{}, [](const Settings& settings) {
        return std::make_unique<Processor>(settings);
    });
    tool.accepts = std::move(accepts);
    tool.unreadable = std::move(unreadable);
    return tool;
}

}  // namespace

const ToolDefinition& photoPreviewTool() {
    static const auto tool = definition<PhotoPreview, PhotoPreviewSettings>(
        "preview.photo", FileTypes::isReadableImage, ConversionError(ConversionError::Case::unreadable));
    return tool;
}

const ToolDefinition& pageListTool() {
    static const auto tool = definition<PageList, PageListSettings>("preview.pages", FileTypes::isPDF,
                                                                    PDFError(PDFError::Case::unreadable));
    return tool;
}

const ToolDefinition& pagePreviewTool() {
    static const auto tool = definition<PagePreview, PagePreviewSettings>(
        "preview.page", FileTypes::isPDF, PDFError(PDFError::Case::unreadable));
    return tool;
}

const ToolDefinition* previewTool(std::string_view id) {
    for (const auto* tool : {&photoPreviewTool(), &pageListTool(), &pagePreviewTool()}) {
        if (tool->id == id) return tool;
    }
    return nullptr;
}

}  // namespace tamble
