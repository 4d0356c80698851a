#pragma once

#include <TambleCore/Catalog/ToolCatalog.h>

#include <string_view>

namespace tamble {

/// What people call the tool's work beside its title, parted by ", ", in English; a key of localizable texts.
std::string_view toolKeywords(const ToolKind& kind);
/// What people call the files of the category, in the same form.
std::string_view categoryKeywords(ToolCategory category);
/// Words that say nothing about a tool ("to", "my"), as searchWords() gives them.
bool isFillWord(std::u32string_view word);

}  // namespace tamble
