#include <TambleCore/Catalog/Suggestions.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tamble {
namespace {

/// What people do most with each kind, the most wanted first.
constexpr std::array<ToolKind, 6> forImages{ImageTool::convert, ImageTool::compress,
                                            ImageTool::resize,  ImageTool::removeMetadata,
                                            ImageTool::rotate,  ImageTool::removeBackground};
/// Of fewer places, one is for what is done before photos and papers are handed on together.
constexpr std::array<ToolKind, 6> forImagesAmongOthers{
    ImageTool::convert, ImageTool::compress, ImageTool::removeMetadata,
    ImageTool::resize,  ImageTool::rotate,   ImageTool::removeBackground};
constexpr std::array<ToolKind, 3> forImagesElsewhere{PDFTool::fromImages, SmartTool::ocr, FileTool::rename};
constexpr std::array<ToolKind, 8> forVideos{VideoTool::compress,     VideoTool::convert, VideoTool::trim,
                                            VideoTool::extractAudio, VideoTool::gif,     VideoTool::mute,
                                            SmartTool::transcribe,   FileTool::rename};
constexpr std::array<ToolKind, 5> forAudio{AudioTool::convert, AudioTool::cleanup, AudioTool::trim,
                                           SmartTool::transcribe, FileTool::rename};
constexpr std::array<ToolKind, 9> forPDFs{PDFTool::merge,    PDFTool::compress, PDFTool::split,
                                          PDFTool::organize, PDFTool::sign,     PDFTool::extractPages,
                                          PDFTool::toImages, SmartTool::ocr,    SmartTool::summarize};
/// Nothing is there to combine it with.
constexpr std::array<ToolKind, 9> forOnePDF{PDFTool::compress, PDFTool::sign,         PDFTool::split,
                                            PDFTool::organize, PDFTool::extractPages, PDFTool::toImages,
                                            SmartTool::ocr,    SmartTool::summarize,  PDFTool::merge};
constexpr std::array<ToolKind, 3> forDocuments{SmartTool::summarize, SmartTool::translate, FileTool::rename};

/// So many are seen at a glance.
constexpr std::size_t seenFirst = 4;

struct Suggestion {
    int count;
    std::vector<const ToolInfo*> tools;
};

template <typename... Lists>
std::vector<const ToolInfo*> runnable(const Lists&... lists) {
    std::vector<const ToolInfo*> tools;
    const auto add = [&](const ToolKind& kind) {
        const ToolInfo* tool = ToolCatalog::ofKind(kind);
        if (ToolCatalog::definition(tool->id) != nullptr) tools.push_back(tool);
    };
    (std::ranges::for_each(lists, add), ...);
    return tools;
}

class Gathered {
  public:
    /// Up to so many of them that are not there yet.
    void add(const Suggestion& suggestion, std::size_t most) {
        for (const ToolInfo* tool : suggestion.tools) {
            if (most == 0) return;
            if (std::ranges::find(tools_, tool->id, &ToolInfo::id) != tools_.end()) continue;
            tools_.push_back(*tool);
            --most;
        }
    }
    std::vector<ToolInfo> take() && { return std::move(tools_); }

  private:
    std::vector<ToolInfo> tools_;
};

}  // namespace

std::vector<ToolInfo> suggestedTools(const KindCounts& counts) {
    const bool isMixed = counts.images < counts.total();
    const bool isLonely = counts.pdfs + counts.images == 1;
    std::vector<Suggestion> suggestions{
        {counts.images, runnable(isMixed ? forImagesAmongOthers : forImages, forImagesElsewhere)},
        {counts.videos, runnable(forVideos)},
        {counts.audio, runnable(forAudio)},
        {counts.pdfs, isLonely ? runnable(forOnePDF) : runnable(forPDFs)},
        {counts.documents, runnable(forDocuments)},
    };
    std::erase_if(suggestions, [](const Suggestion& each) { return each.count == 0 || each.tools.empty(); });
    std::ranges::stable_sort(suggestions, std::ranges::greater(), &Suggestion::count);
    Gathered gathered;
    // The most frequent kind leads, and leaves a place for the best of each other kind.
    const std::size_t others = suggestions.empty() ? 0 : suggestions.size() - 1;
    std::size_t share = seenFirst - std::min(others, seenFirst - 1);
    for (const Suggestion& each : suggestions) gathered.add(each, std::exchange(share, 1));
    for (const Suggestion& each : suggestions) gathered.add(each, each.tools.size());
    return std::move(gathered).take();
}

}  // namespace tamble
