#pragma once

#include <TambleCore/Platform/Volume.h>

#include <chrono>
#include <string>
#include <unordered_map>
#include <vector>

namespace tamble {

/// Finds in the Bins of all volumes what was put there since some moment, by the place where it was. Each Bin
/// is read once, when it is first needed.
class RecentlyTrashed {
  public:
    explicit RecentlyTrashed(std::chrono::system_clock::time_point since) : since_(since) {}

    /// Where in the Bin the item is that stood at the path, the newest if there are several; empty when there
    /// is none. Never throws for a Bin that cannot be read: there is nothing in it then.
    std::optional<std::filesystem::path> placeOf(const std::filesystem::path& original);

  private:
    /// By the place where the item was, links in the folders above it resolved.
    using Items = std::unordered_map<std::string, std::filesystem::path>;
    struct Bin {
        std::optional<Volume> volume;
        Items items;
    };
    const Items& itemsNear(const std::filesystem::path& folder);
    Items readBin(const std::filesystem::path& folder) const;

    std::chrono::system_clock::time_point since_;
    std::vector<Bin> bins_;
};

}  // namespace tamble
