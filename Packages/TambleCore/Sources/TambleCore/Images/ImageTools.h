#pragma once

#include <TambleCore/Jobs/ToolDefinition.h>

namespace tamble {

/// The six image tools, in the order of ImageTool.
std::vector<ToolDefinition> imageTools();

}  // namespace tamble
