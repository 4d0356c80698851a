#pragma once

#include <TambleCore/Intake/InputFile.h>

#include <span>
#include <vector>

namespace tamble {

/// The indexes of the files that are not where they were any more, as after a job that renamed them.
std::vector<std::size_t> goneFiles(std::span<const InputFile> files);

}  // namespace tamble
