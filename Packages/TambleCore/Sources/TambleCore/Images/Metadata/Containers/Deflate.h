#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

namespace tamble {

/// What a zlib stream holds; empty when it is damaged or holds more than `limit` bytes.
std::optional<Bytes> inflated(ByteView stream, std::size_t limit);

/// A zlib stream that holds `data`.
Bytes deflated(ByteView data);

}  // namespace tamble
