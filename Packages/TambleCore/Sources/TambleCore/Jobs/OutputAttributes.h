#pragma once

#include <TambleCore/Intake/InputFile.h>

#include <span>

namespace tamble {

enum class OutputTime { now, ofOriginal };

/// Gives a finished output (a file, or a folder with all it holds) what people expect it to keep: the
/// permissions and, as far as allowed, the owner of its original, and if asked its modification time. An
/// output of several files may be read by those only who may read each of them. What cannot be kept is left
/// as it is.
void keepAttributes(std::span<const InputFile> inputs, const std::filesystem::path& output, OutputTime time);

}  // namespace tamble
