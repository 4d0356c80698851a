#pragma once

#include <TambleCore/PDF/Pictures/Bytes.h>

#include <cstddef>
#include <optional>
#include <stop_token>

namespace tamble::pdf {

/// What a zlib stream holds; bytes behind its end don't matter. Empty when it is damaged or holds more than
/// `limit` bytes. Takes less than 0.1 s for limits up to 64 MiB.
std::optional<Bytes> inflated(ByteView stream, std::size_t limit);

/// A zlib stream that holds `data`, as small as libdeflate makes it in reasonable time, or zlib when there is
/// so much that it has to be asked in between. Throws Cancelled.
Bytes deflated(ByteView data, const std::stop_token& stop);

/// About the size that `data` deflates to, for comparing: quickly told, from its first part where there is
/// much.
std::size_t roughlyDeflatedSize(ByteView data);

}  // namespace tamble::pdf
