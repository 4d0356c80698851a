#pragma once

#include <TambleCore/Jobs/StagingFolder.h>
#include <TambleCore/Platform/Volume.h>

#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>

namespace tamble {

/// The staging folders of one job: one for each volume that its outputs go to, made when first needed. Thread-safe.
class StagingArea {
  public:
    StagingArea() = default;
    StagingArea(const StagingArea&) = delete;
    StagingArea& operator=(const StagingArea&) = delete;
    ~StagingArea();

    /// Where the item writes its output, which will go to `target`; in a folder of its own, which exists then. Throws
    /// std::filesystem::filesystem_error when that cannot be made.
    std::filesystem::path placeFor(std::size_t index, const std::filesystem::path& target);
    /// The same place again.
    std::filesystem::path existingPlaceFor(std::size_t index, const std::filesystem::path& target) const;
    /// Removes the item's folder with whatever is left in it; what cannot be removed now is at the end.
    void discard(std::size_t index, const std::filesystem::path& target);

  private:
    struct OnVolume {
        std::optional<Volume> volume;
        StagingFolder folder;
    };
    const StagingFolder& folderNear(const std::filesystem::path& target);
    std::filesystem::path itemFolder(std::size_t index, const std::filesystem::path& target) const;

    mutable std::mutex lock_;
    std::list<OnVolume> volumes_;
    /// By the folder of a target.
    std::unordered_map<std::string, const StagingFolder*> known_;
    /// Folders near which none can be made, with the reason.
    std::unordered_map<std::string, std::error_code> refused_;
};

}  // namespace tamble
