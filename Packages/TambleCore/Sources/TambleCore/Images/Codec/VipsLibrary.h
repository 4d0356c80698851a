#pragma once

namespace tamble {

/// Starts libvips at the first call, set up for many pictures at once from untrusted files: no cache of
/// results, one thread a picture, its loaders blocked but for those of the formats that are read here.
void startVips();

}  // namespace tamble
