#pragma once

#include <filesystem>

namespace tamble::gallery {

/// A home folder that is removed in the end. As long as it lives it stands in the place of the user's own: it
/// must be made before anything asks where that is.
class PrivateHome {
  public:
    /// Throws std::system_error.
    PrivateHome();
    ~PrivateHome();
    PrivateHome(const PrivateHome&) = delete;
    PrivateHome& operator=(const PrivateHome&) = delete;

    const std::filesystem::path& folder() const { return folder_; }

  private:
    std::filesystem::path folder_;
};

}  // namespace tamble::gallery
