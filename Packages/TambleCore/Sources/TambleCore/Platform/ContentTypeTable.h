#pragma once

#include <span>
#include <string_view>

namespace tamble {

/// One line of the table of types. Identifiers are the declared ones where a format has one.
struct ContentTypeFacts {
    std::string_view identifier;
    /// The identifier of the next more general type; empty at the top.
    std::string_view conformsTo;
    /// In lower case, parted by spaces, the usual one first; empty for types that only gather others.
    std::string_view extensions;
};

std::span<const ContentTypeFacts> contentTypeTable() noexcept;
/// The line of the next more general type; null at the top. `facts` is a line of the table.
const ContentTypeFacts* moreGeneral(const ContentTypeFacts& facts) noexcept;

}  // namespace tamble
