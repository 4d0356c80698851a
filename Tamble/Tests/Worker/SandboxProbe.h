#pragma once

#include <filesystem>
#include <string>

namespace tamble {

/// Tries what a worker must not be able to do, writing to files in the folder `outside`; the names of what
/// succeeded and of the permitted things that failed, one a line.
std::string probeSandbox(const std::filesystem::path& outside);

}  // namespace tamble
