#pragma once

#include <string>

namespace tamble {

/// What a job is told beside its settings and nobody may find afterwards: it has no JSON form, and so reaches
/// no log, no journal and no stored settings.
struct Secrets {
    /// The password to add, or the one that opens locked inputs; empty for none.
    std::string password;
};

}  // namespace tamble
