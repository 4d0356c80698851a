#include <TambleCore/Catalog/Suggestions.h>

#include <array>

namespace tamble {
namespace {

/// What people do most with each kind, the most wanted first.
constexpr std::array<ToolKind, 6> forImages{ImageTool::convert, ImageTool::compress,
                                            ImageTool::resize,  ImageTool::removeMetadata,
                                            ImageTool::rotate,  ImageTool::removeBackground};
constexpr std::array<ToolKind, 3> forImagesElsewhere{PDFTool::fromImages, SmartTool::ocr, FileTool::rename};
constexpr std::array<ToolKind, 8> forVideos{VideoTool::compress,     VideoTool::convert, VideoTool::trim,
                                            VideoTool::extractAudio, VideoTool::gif,     VideoTool::mute,
                                            SmartTool::transcribe,   FileTool::rename};
constexpr std::array<ToolKind, 5> forAudio{AudioTool::convert, AudioTool::cleanup, AudioTool::trim,
                                           SmartTool::transcribe, FileTool::rename};
constexpr std::array<ToolKind, 8> forPDFs{PDFTool::merge,    PDFTool::compress,     PDFTool::split,
                                          PDFTool::organize, PDFTool::extractPages, PDFTool::toImages,
                                          SmartTool::ocr,    SmartTool::summarize};
constexpr std::array<ToolKind, 3> forDocuments{SmartTool::summarize, SmartTool::translate, FileTool::rename};

struct Suggestion {
    int count;
    std::vector<ToolKind> kinds;
};

template <typename... Lists>
std::vector<ToolKind> joined(const Lists&... lists) {
    std::vector<ToolKind> kinds;
    (kinds.insert(kinds.end(), lists.begin(), lists.end()), ...);
    return kinds;
}

}  // namespace

std::vector<ToolInfo> suggestedTools(const KindCounts& counts) {
    std::array<Suggestion, 5> suggestions{{
        {counts.images, joined(forImages, forImagesElsewhere)},
        {counts.videos, joined(forVideos)},
        {counts.audio, joined(forAudio)},
        {counts.pdfs, joined(forPDFs)},
        {counts.documents, joined(forDocuments)},
    }};
    std::ranges::stable_sort(suggestions, std::ranges::greater(), &Suggestion::count);
    std::vector<ToolInfo> tools;
    for (const auto& suggestion : suggestions) {
        if (suggestion.count == 0) continue;
        for (const ToolKind& kind : suggestion.kinds) {
            const ToolInfo* tool = ToolCatalog::ofKind(kind);
            const bool known = std::ranges::find(tools, tool->id, &ToolInfo::id) != tools.end();
            if (!known && ToolCatalog::definition(tool->id) != nullptr) tools.push_back(*tool);
        }
    }
    return tools;
}

}  // namespace tamble
