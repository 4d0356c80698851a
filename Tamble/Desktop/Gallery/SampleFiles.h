#pragma once

#include <filesystem>

namespace tamble::gallery {

/// Makes files to show the window with, below one folder. Each answers what to drop, and throws
/// std::exception.
class SampleFiles {
  public:
    explicit SampleFiles(std::filesystem::path home) : home_(std::move(home)) {}

    /// A folder of photos with folders in it.
    std::filesystem::path photos() const;
    /// The same among damaged ones.
    std::filesystem::path damagedPhotos() const;
    /// Photos with names as long as a disk takes them.
    std::filesystem::path longNames() const;
    /// A folder of so many tiny pictures.
    std::filesystem::path manyPictures(int count) const;
    /// A PDF with a photo on each page.
    std::filesystem::path album() const;
    /// A PDF with a letter that waits for a signature.
    std::filesystem::path letter() const;

  private:
    std::filesystem::path home_;
};

}  // namespace tamble::gallery
