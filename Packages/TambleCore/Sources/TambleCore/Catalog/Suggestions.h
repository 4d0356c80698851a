#pragma once

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Intake/KindCounts.h>

namespace tamble {

/// The tools that fit what was dropped, the most useful first: those of the most frequent kind lead, and the
/// best of every other kind is among the first four. Only tools that can run here.
std::vector<ToolInfo> suggestedTools(const KindCounts& counts);

}  // namespace tamble
