#pragma once

#include <filesystem>
#include <optional>

namespace tamble {

/// The program that workers run: beside the running program, or in "../bin" or "../libexec/tamble" from the
/// folder of this library. Empty when it is in none of them.
std::optional<std::filesystem::path> workerExecutable();

}  // namespace tamble
