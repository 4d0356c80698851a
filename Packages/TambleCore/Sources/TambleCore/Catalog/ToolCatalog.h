#pragma once

#include <TambleCore/Images/ImageTool.h>
#include <TambleCore/Jobs/ToolDefinition.h>
#include <TambleCore/Media/AudioTool.h>
#include <TambleCore/Media/VideoTool.h>
#include <TambleCore/PDF/PDFTool.h>
#include <TambleCore/Rename/FileTool.h>
#include <TambleCore/Smart/SmartTool.h>

#include <span>

namespace tamble {

enum class ToolCategory { video, audio, images, pdf, smart, files };
BOOST_DESCRIBE_ENUM(ToolCategory, video, audio, images, pdf, smart, files)

/// As people read it.
std::string_view title(ToolCategory category);

/// A tool's family and which of its tools it is.
using ToolKind = std::variant<ImageTool, VideoTool, AudioTool, PDFTool, SmartTool, FileTool>;

/// One entry of the catalog. Titles and subtitles are keys of localizable texts.
struct ToolInfo {
    std::string id;
    ToolCategory category;
    std::string_view title;
    std::string_view subtitle;
    std::string_view symbol;
    ToolKind kind;
};

/// The one list of every tool, in the order in which screens show them.
namespace ToolCatalog {

std::span<const ToolInfo> all();
/// Null when there is no such tool.
const ToolInfo* withID(std::string_view id);
const ToolInfo* ofKind(const ToolKind& kind);
/// In catalog order.
std::vector<ToolInfo> inCategory(ToolCategory category);

/// How a tool is made from its settings; null for one that cannot run here yet, see unavailableReason().
const ToolDefinition* definition(std::string_view id);
/// Why a tool of the catalog cannot run on this machine, as a sentence; empty when it can.
std::string unavailableReason(std::string_view id);

}  // namespace ToolCatalog

}  // namespace tamble
