#pragma once

#include <filesystem>

namespace tamble::samples {

/// Fills `folder`, which must not exist yet, with pictures as a camera leaves them: of several sizes and
/// orientations, with camera, date and place, one with transparency, one in a subfolder. The folder appears
/// when it is complete. Throws std::exception.
void makeSampleFolder(const std::filesystem::path& folder);

}  // namespace tamble::samples
