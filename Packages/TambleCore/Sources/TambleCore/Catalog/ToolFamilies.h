#pragma once

#include <TambleCore/Jobs/ToolDefinition.h>

namespace tamble {

/// The definitions of all tools that can run here, family by family.
std::vector<ToolDefinition> toolDefinitions();

}  // namespace tamble
