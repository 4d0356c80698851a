#pragma once

#include <compare>
#include <concepts>
#include <filesystem>
#include <memory>
#include <string>

namespace tamble {

/// A path to be kept in large numbers: immutable, and copies share its bytes. std::filesystem::path, which it
/// becomes wherever it is used, also holds its components, several hundred bytes in every copy.
class FilePath {
  public:
    FilePath() = default;
    FilePath(std::string bytes);
    FilePath(const char* bytes) : FilePath(std::string(bytes)) {}
    FilePath(const std::filesystem::path& path) : FilePath(path.native()) {}

    std::filesystem::path path() const { return native(); }
    operator std::filesystem::path() const { return path(); }

    const std::string& native() const noexcept;
    const char* c_str() const noexcept { return native().c_str(); }
    bool empty() const noexcept { return bytes_ == nullptr; }

    std::filesystem::path filename() const { return path().filename(); }
    std::filesystem::path stem() const { return path().stem(); }
    std::filesystem::path extension() const { return path().extension(); }
    std::filesystem::path parent_path() const { return path().parent_path(); }
    std::filesystem::path lexically_normal() const { return path().lexically_normal(); }

    /// Paths are compared byte by byte.
    friend bool operator==(const FilePath& a, const FilePath& b) {
        return a.bytes_ == b.bytes_ || a.native() == b.native();
    }
    friend bool operator==(const FilePath& a, const std::same_as<std::filesystem::path> auto& b) {
        return a.native() == b.native();
    }
    friend bool operator==(const FilePath& a, const char* b) { return a.native() == b; }
    friend std::strong_ordering operator<=>(const FilePath& a, const FilePath& b) {
        return a.native() <=> b.native();
    }

  private:
    /// Null for the empty path.
    std::shared_ptr<const std::string> bytes_;
};

}  // namespace tamble
