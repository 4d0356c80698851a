#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

#include <functional>

#include <exiv2/properties.hpp>
#include <exiv2/xmp_exiv2.hpp>

namespace tamble::xmp {

/// The properties of a packet; empty when it cannot be understood. Safe to call from several threads.
std::optional<Exiv2::XmpData> decoded(ByteView packet);

/// A packet with the properties; empty when they cannot be written.
std::optional<Bytes> encoded(const Exiv2::XmpData& properties);

/// Whether any was removed.
bool removeIf(Exiv2::XmpData& properties, const std::function<bool(const Exiv2::Xmpdatum&)>& condition);

}  // namespace tamble::xmp
