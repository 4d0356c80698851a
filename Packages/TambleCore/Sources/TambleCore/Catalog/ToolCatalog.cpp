#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Catalog/ToolFamilies.h>

#include <array>

namespace tamble {
namespace {

struct Entry {
    ToolKind kind;
    std::string_view title;
    std::string_view subtitle;
    std::string_view symbol;
};

constexpr std::array<Entry, 39> entries{{
    {ImageTool::convert, "Convert", "WebP, JPEG, PNG, HEIC and more", "arrow.triangle.2.circlepath"},
    {ImageTool::compress, "Make smaller", "Smaller files that look the same",
     "arrow.down.right.and.arrow.up.left"},
    {ImageTool::resize, "Resize", "Change the width and height",
     "arrow.up.left.and.down.right.magnifyingglass"},
    {ImageTool::rotate, "Rotate or flip", "Turn many photos at once", "rotate.right"},
    {ImageTool::removeMetadata, "Remove location & camera info", "Share photos without hidden details",
     "location.slash"},
    {ImageTool::removeBackground, "Remove background", "Cut out the subject, see-through background",
     "person.crop.rectangle"},
    {VideoTool::compress, "Make smaller", "For email, WhatsApp and Slack",
     "arrow.down.right.and.arrow.up.left"},
    {VideoTool::trim, "Trim", "Cut the start or end", "scissors"},
    {VideoTool::resize, "Resize", "720p, 1080p or custom", "aspectratio"},
    {VideoTool::cropRotate, "Crop & rotate", "Fix sideways or badly framed video", "crop.rotate"},
    {VideoTool::speed, "Change speed", "Faster or slower, voices sound normal",
     "gauge.with.dots.needle.67percent"},
    {VideoTool::merge, "Join clips", "Put several videos together", "rectangle.stack.badge.plus"},
    {VideoTool::mute, "Remove sound", "Silent video", "speaker.slash"},
    {VideoTool::replaceAudio, "Replace sound", "Use music or a voice-over instead", "music.note"},
    {VideoTool::subtitles, "Add subtitles", "Burn captions into the video", "captions.bubble"},
    {VideoTool::convert, "Convert", "MP4, MOV or WebM", "arrow.triangle.2.circlepath"},
    {VideoTool::gif, "Make a GIF", "Short looping animation", "repeat"},
    {VideoTool::extractAudio, "Get the audio", "Save just the sound as MP3", "waveform"},
    {AudioTool::record, "Record a voice note", "Saved straight to your Mac", "mic"},
    {AudioTool::trim, "Trim", "Cut the start or end", "scissors"},
    {AudioTool::cleanup, "Clean up", "Less background noise, even volume", "wand.and.rays"},
    {AudioTool::extract, "Get audio from video", "Save the sound of any video", "film"},
    {AudioTool::convert, "Convert", "MP3, M4A, WAV or FLAC", "arrow.triangle.2.circlepath"},
    {PDFTool::merge, "Combine PDFs", "Many PDFs (and photos) into one", "doc.on.doc"},
    {PDFTool::split, "Split", "One PDF into several", "square.split.2x1"},
    {PDFTool::organize, "Reorder & rotate pages", "Drag pages into place", "rectangle.grid.2x2"},
    {PDFTool::deletePages, "Delete pages", "Remove pages you don't need", "trash"},
    {PDFTool::extractPages, "Take out pages", "Save some pages as a new PDF", "doc.badge.arrow.up"},
    {PDFTool::compress, "Make smaller", "So it fits in an email", "arrow.down.right.and.arrow.up.left"},
    {PDFTool::sign, "Sign", "Draw your signature", "signature"},
    {PDFTool::addPassword, "Add a password", "Only people with the password can open it", "lock"},
    {PDFTool::removePassword, "Remove a password", "When you know the password", "lock.open"},
    {PDFTool::fromImages, "Photos to PDF", "One photo per page", "photo.on.rectangle"},
    {PDFTool::toImages, "PDF to photos", "Every page as an image", "photo.stack"},
    {SmartTool::transcribe, "Speech to text", "Subtitles or a text file, privately", "text.bubble"},
    {SmartTool::ocr, "Copy text from images", "From photos, scans and PDFs", "text.viewfinder"},
    {SmartTool::summarize, "Summarise", "Short version of long text", "text.append"},
    {SmartTool::translate, "Translate", "Text, documents and subtitles, offline", "character.bubble"},
    {FileTool::rename, "Rename many files", "Numbered names with a live preview", "textformat.123"},
}};

/// The prefix of a family's tool ids, and the category that its tools stand in.
struct Family {
    std::string_view prefix;
    ToolCategory category;
};

/// In the order of ToolKind.
constexpr std::array<Family, std::variant_size_v<ToolKind>> families{{
    {"image", ToolCategory::images},
    {"video", ToolCategory::video},
    {"audio", ToolCategory::audio},
    {"pdf", ToolCategory::pdf},
    {"smart", ToolCategory::smart},
    {"files", ToolCategory::files},
}};

std::string toolID(const ToolKind& kind) {
    std::string_view name = std::visit([](auto tool) { return caseName(tool); }, kind);
    // Activity logs and recipes hold this id from before the tool's case got its name.
    if (kind == ToolKind(VideoTool::extractAudio)) name = "audio";
    return std::string(families[kind.index()].prefix) + "." + std::string(name);
}

std::vector<ToolInfo> buildCatalog() {
    std::vector<ToolInfo> catalog;
    catalog.reserve(entries.size());
    for (const auto& entry : entries) {
        catalog.push_back({.id = toolID(entry.kind),
                           .category = families[entry.kind.index()].category,
                           .title = entry.title,
                           .subtitle = entry.subtitle,
                           .symbol = entry.symbol,
                           .kind = entry.kind});
    }
    return catalog;
}

template <typename Predicate>
const ToolInfo* first(Predicate matches) {
    const auto found = std::ranges::find_if(ToolCatalog::all(), matches);
    return found == ToolCatalog::all().end() ? nullptr : &*found;
}

}  // namespace

std::string_view title(ToolCategory category) {
    switch (category) {
        case ToolCategory::video:
            return "Video";
        case ToolCategory::audio:
            return "Sound";
        case ToolCategory::images:
            return "Photos";
        case ToolCategory::pdf:
            return "PDF";
        case ToolCategory::smart:
            return "Smart";
        case ToolCategory::files:
            break;
    }
    return "Files";
}

namespace ToolCatalog {

std::span<const ToolInfo> all() {
    static const std::vector<ToolInfo> catalog = buildCatalog();
    return catalog;
}

const ToolInfo* withID(std::string_view id) {
    return first([id](const ToolInfo& tool) { return tool.id == id; });
}

const ToolInfo* ofKind(const ToolKind& kind) {
    return first([&kind](const ToolInfo& tool) { return tool.kind == kind; });
}

std::vector<ToolInfo> inCategory(ToolCategory category) {
    std::vector<ToolInfo> tools(all().begin(), all().end());
    std::erase_if(tools, [category](const ToolInfo& tool) { return tool.category != category; });
    return tools;
}

const ToolDefinition* definition(std::string_view id) {
    static const std::vector<ToolDefinition> definitions = toolDefinitions();
    const auto found = std::ranges::find(definitions, id, &ToolDefinition::id);
    return found == definitions.end() ? nullptr : &*found;
}

std::string unavailableReason(std::string_view id) {
    return definition(id) == nullptr ? "This version of Tamble can't do this yet." : "";
}

}  // namespace ToolCatalog

}  // namespace tamble
