#pragma once

#include <Tamble/Model/ToolUse.h>

#include <TambleCore/Catalog/ToolCatalog.h>

#include <chrono>
#include <span>
#include <vector>

namespace tamble {

/// The tools for the start screen, all of which run here: those used most and most recently, then well-chosen
/// ones.
std::vector<const ToolInfo*> popularTools(std::span<const ToolUse> uses,
                                          std::chrono::system_clock::time_point now, std::size_t most = 6);

}  // namespace tamble
