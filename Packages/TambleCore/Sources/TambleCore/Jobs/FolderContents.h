#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>

namespace tamble {

/// Which names are taken, by key: each folder is read once, then kept up to date by those who change it, so
/// that names that differ only in letter case or composition are the same on every file system.
class FolderContents {
  public:
    /// What stands at the path, under any spelling of its name; the exact spelling first. `isNot` is passed
    /// over.
    std::optional<std::filesystem::path> existing(const std::filesystem::path& path,
                                                  const std::optional<std::filesystem::path>& isNot = {});

    void add(const std::filesystem::path& path);
    void remove(const std::filesystem::path& path);

  private:
    /// The names of one folder by their keys.
    using Names = std::unordered_multimap<std::string, std::string>;
    Names& namesIn(const std::string& folder);

    std::unordered_map<std::string, Names> folders_;
};

}  // namespace tamble
