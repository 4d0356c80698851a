#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace tamble {

/// What a piece of work takes of the process it is done in, beyond or below what is usual (WorkerLimits).
struct WorkNeeds {
    /// It starts other programs, which are then confined as the worker itself is.
    bool startsPrograms = false;
    /// It never takes more bytes of memory than this, unless its file is made to exhaust it.
    std::optional<std::uint64_t> memory = {};
    /// It never uses so much processor time without reporting, unless its file is made to waste it.
    std::optional<std::chrono::milliseconds> silence = {};

    friend bool operator==(const WorkNeeds&, const WorkNeeds&) = default;
};

}  // namespace tamble
