#pragma once

#include <filesystem>

namespace tamble {

/// Moves a file or folder, across volumes too. `to` appears whole or not at all, and what stands there
/// already is never overwritten. Throws std::filesystem::filesystem_error; everything is then as it was.
void moveItem(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace tamble
