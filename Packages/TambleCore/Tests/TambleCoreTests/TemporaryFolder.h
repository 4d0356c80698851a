#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <stdlib.h>

namespace tamble::testing {

/// A new empty folder, removed with all it holds at the end of the test.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tamble-test-XXXXXX").native();
        if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = pattern;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

    /// Writes a file, with the folders above it.
    std::filesystem::path file(const std::filesystem::path& relative, std::string_view content = "x") const {
        const auto file = path_ / relative;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
        return file;
    }
    std::filesystem::path folder(const std::filesystem::path& relative) const {
        std::filesystem::create_directories(path_ / relative);
        return path_ / relative;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace tamble::testing
