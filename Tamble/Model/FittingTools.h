#pragma once

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Intake/InputFile.h>

#include <span>
#include <vector>

namespace tamble {

struct ToolFit {
    const ToolInfo* tool = nullptr;
    /// How many of the files it would work on.
    int fileCount = 0;
};

/// The tools that run here and take at least one of the files: those that are suggested, the most useful
/// first, then the others in catalog order.
std::vector<ToolFit> fittingTools(std::span<const InputFile> files);

}  // namespace tamble
