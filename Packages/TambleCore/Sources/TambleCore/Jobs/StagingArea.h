#pragma once

#include <TambleCore/Jobs/StagingFolder.h>
#include <TambleCore/Platform/Volume.h>

#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>

namespace tamble {

/// The staging folders of one job: one for each volume that its outputs go to, made when first needed.
/// Thread-safe.
class StagingArea {
  public:
    /// Where the item writes its output, which will go to `target`: a name of its own with the target's
    /// extension, in a folder that exists then. Throws std::filesystem::filesystem_error when that cannot be
    /// made.
    std::filesystem::path makePlace(std::size_t index, const std::filesystem::path& target);
    /// The place that was made for the item.
    std::filesystem::path placeOf(std::size_t index) const;
    /// Removes what is left at the item's place.
    void discard(std::size_t index);
    /// Removes everything.
    void removeAll();

  private:
    struct OnVolume {
        std::optional<Volume> volume;
        StagingFolder folder;
    };
    struct Item {
        const StagingFolder* folder = nullptr;
        std::string extension;
    };
    const StagingFolder& folderNear(const std::filesystem::path& target);
    static std::filesystem::path place(std::size_t index, const Item& item);

    mutable std::mutex lock_;
    std::list<OnVolume> volumes_;
    std::unordered_map<std::size_t, Item> items_;
    /// By the folder of a target.
    std::unordered_map<std::string, const StagingFolder*> known_;
    /// Folders near which none can be made, with the reason.
    std::unordered_map<std::string, std::error_code> refused_;
};

}  // namespace tamble
