#pragma once

#include <TambleCore/Jobs/ToolDefinition.h>

namespace tamble {

/// The PDF tools, in the order of PDFTool.
std::vector<ToolDefinition> pdfTools();

}  // namespace tamble
