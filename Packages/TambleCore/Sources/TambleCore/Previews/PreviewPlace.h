#pragma once

#include <TambleCore/Jobs/StagingArea.h>

#include <filesystem>
#include <memory>
#include <mutex>
#include <string>

namespace tamble {

/// A private place for one output; what stands at it is removed with its owner.
class PreviewPlace {
  public:
    ~PreviewPlace();
    PreviewPlace(PreviewPlace&& other) noexcept = default;
    PreviewPlace& operator=(PreviewPlace&&) = delete;

    const std::filesystem::path& path() const noexcept { return path_; }

  private:
    friend class PreviewPlaces;
    PreviewPlace(std::shared_ptr<StagingArea> area, std::size_t index, std::filesystem::path path);

    /// Empty when the place went on to another owner.
    std::shared_ptr<StagingArea> area_;
    std::size_t index_;
    std::filesystem::path path_;
};

/// Makes such places, all in one staging folder in the program's caches, which goes with the last of them.
/// Thread-safe.
class PreviewPlaces {
  public:
    PreviewPlaces();

    /// For an output of that name, whose extension the place has. Throws Failure.
    PreviewPlace make(const std::string& name);

  private:
    std::mutex mutex_;
    std::shared_ptr<StagingArea> area_;
    std::size_t next_ = 0;
};

}  // namespace tamble
