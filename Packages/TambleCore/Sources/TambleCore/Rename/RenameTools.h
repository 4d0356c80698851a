#pragma once

#include <TambleCore/Jobs/ToolDefinition.h>

namespace tamble {

std::vector<ToolDefinition> renameTools();

}  // namespace tamble
