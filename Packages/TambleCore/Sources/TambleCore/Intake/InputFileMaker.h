#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/Platform/DirectoryListing.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <variant>
#include <vector>

namespace tamble {

/// The accepted files of one folder, in order.
struct FoundFiles {
    struct File {
        /// Refers into `listing`.
        std::string_view name;
        std::int64_t byteSize = 0;
        std::optional<ContentType> contentType;
    };
    std::filesystem::path folder;
    FilePath root;
    std::string relativeFolder;
    std::shared_ptr<const DirectoryListing> listing;
    std::vector<File> files;
};

/// Makes input files of what one thread finds on another: paths take as long to build as folders to read.
class InputFileMaker {
  public:
    void add(std::variant<FoundFiles, InputFile> found);
    /// Says that nothing more will be added.
    void close();
    /// All files in the order in which they were added; returns after close().
    std::vector<InputFile> makeAll();

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::variant<FoundFiles, InputFile>> waiting_;
    bool isClosed_ = false;
};

}  // namespace tamble
