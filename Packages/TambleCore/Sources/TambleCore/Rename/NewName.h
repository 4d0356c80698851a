#pragma once

#include <TambleCore/Rename/RenamePattern.h>

namespace tamble {

/// The name that a pattern gives one file.
struct NewName {
    std::string stem;
    /// Without its dot; empty for none.
    std::string extension;

    /// `index` is the file's place in the list, from 0. A "/" in what is typed becomes "-", as it does in the
    /// names of all outputs; the rest stays as it is typed, and a kept name as its bytes are.
    static NewName of(const std::string& currentName, std::size_t index, const RenamePattern& pattern);

    std::string whole() const;
    /// Whether nothing is left that could name a file.
    bool isEmpty() const;
};

}  // namespace tamble
