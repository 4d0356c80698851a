#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace tamble {

/// A mounted file system, or a part of one: two places are of one volume when a file can be renamed from one
/// to the other.
struct Volume {
    std::uint64_t device = 0;
    std::uint64_t mount = 0;

    /// The volume of what stands at the path, links followed; empty when nothing does.
    static std::optional<Volume> of(const std::filesystem::path& path);

    friend bool operator==(const Volume&, const Volume&) = default;
};

/// The path itself, or the nearest folder above it that exists.
std::filesystem::path nearestExisting(const std::filesystem::path& path);

/// The topmost folder of the volume that holds the existing folder; throws std::filesystem::filesystem_error.
std::filesystem::path topOfVolume(const std::filesystem::path& folder);

}  // namespace tamble
