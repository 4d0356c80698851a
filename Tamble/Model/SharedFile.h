#pragma once

#include <TambleCore/Support/Json/Json.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace tamble {

/// A JSON document on disk that several programs read and change.
class SharedFile {
  public:
    explicit SharedFile(std::filesystem::path path) : path_(std::move(path)) {}

    const std::filesystem::path& path() const noexcept { return path_; }

    /// Empty when there is no file. Throws DecodeError for a file that is not JSON and
    /// std::filesystem::filesystem_error for one that cannot be read.
    std::optional<Json> read() const;
    /// The same without asking whether it is JSON.
    std::optional<std::string> readText() const;

    /// Runs `change` while no other program changes the file, and writes what it answers.
    void update(const std::function<Json()>& change) const;
    /// The same for a text in parts, which are written one after the other.
    void updateText(const std::function<std::vector<std::string_view>()>& change) const;

    /// Keeps the file under another name, "activity.json.unreadable", to be replaced by a fresh one.
    void moveAside() const;

    /// A lock file beside the file: for "undo", "activity.json.undo.lock".
    std::filesystem::path lockFile(std::string_view purpose) const;

  private:
    std::filesystem::path path_;
};

}  // namespace tamble
