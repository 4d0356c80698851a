#pragma once

#include <TambleCore/Support/UUID.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <system_error>

#include <sys/stat.h>

namespace tamble {

/// A folder for one test, removed with it. The user's own folders (data with the Bin, caches, preferences)
/// stand in it as long as it lives, so that a test never touches the real ones.
class TestFolder {
  public:
    explicit TestFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
        : path_(parent / ("tamble-test-" + newUUID())) {
        std::filesystem::create_directories(files());
        ::setenv("XDG_DATA_HOME", (path_ / "home/data").c_str(), 1);
        ::setenv("XDG_CACHE_HOME", (path_ / "home/caches").c_str(), 1);
        ::setenv("XDG_CONFIG_HOME", (path_ / "home/config").c_str(), 1);
    }
    ~TestFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    std::filesystem::path files() const { return path_ / "files"; }
    std::filesystem::path home() const { return path_ / "home"; }
    std::filesystem::path bin() const { return home() / "data/Trash"; }
    std::filesystem::path staging() const { return home() / "caches/tamble/staging"; }

    /// Writes a file below files() and answers its path.
    std::filesystem::path write(const std::filesystem::path& relative, const std::string& content) const {
        const std::filesystem::path path = files() / relative;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }

  private:
    std::filesystem::path path_;
};

inline std::string contentOf(const std::filesystem::path& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

/// Everything below the folder, by relative path: the bytes, permissions and modification time of files,
/// nothing but the fact for folders. Two equal snapshots are the same tree to the byte.
inline std::map<std::string, std::string> snapshot(const std::filesystem::path& folder) {
    std::map<std::string, std::string> tree;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).native();
        struct stat properties {};
        if (::lstat(entry.path().c_str(), &properties) != 0) continue;
        std::ostringstream described;
        if (S_ISDIR(properties.st_mode)) {
            described << "folder";
        } else {
            described << contentOf(entry.path()) << " " << std::oct << properties.st_mode << " " << std::dec
                      << properties.st_mtim.tv_sec << "." << properties.st_mtim.tv_nsec;
        }
        tree[name] = described.str();
    }
    return tree;
}

/// The names directly in the folder, sorted.
inline std::string namesIn(const std::filesystem::path& folder) {
    std::map<std::string, bool> names;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        names[entry.path().filename().native()] = true;
    }
    std::string list;
    for (const auto& [name, there] : names) list += (list.empty() ? "" : "|") + name;
    return list;
}

}  // namespace tamble
