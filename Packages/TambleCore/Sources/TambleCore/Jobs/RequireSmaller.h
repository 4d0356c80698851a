#pragma once

#include <TambleCore/Intake/InputFile.h>

namespace tamble {

/// Removes an output that is not smaller than its input, and throws ProcessorSkip with skip::NotSmaller.
/// Sizes that are not known are no reason.
void requireSmaller(const InputFile& file, const std::filesystem::path& output);

}  // namespace tamble
