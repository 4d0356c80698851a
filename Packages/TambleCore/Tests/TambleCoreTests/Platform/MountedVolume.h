#pragma once

#include <TambleCoreTests/TestFolder.h>
#include <sys/mount.h>

namespace tamble {

/// Another volume: a file system in memory, where the test may mount one.
class MountedVolume {
  public:
    explicit MountedVolume(const std::filesystem::path& parent, const char* options = "size=16m,mode=0755")
        : top_(parent / "volume") {
        std::filesystem::create_directories(top_);
        isMounted_ = ::mount("tamble-test", top_.c_str(), "tmpfs", MS_NOSUID | MS_NODEV, options) == 0;
    }
    ~MountedVolume() {
        if (isMounted_) ::umount2(top_.c_str(), MNT_DETACH);
    }
    MountedVolume(const MountedVolume&) = delete;
    MountedVolume& operator=(const MountedVolume&) = delete;

    explicit operator bool() const { return isMounted_; }
    const std::filesystem::path& top() const { return top_; }
    bool makeReadOnly() const {
        return ::mount("tamble-test", top_.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

    std::filesystem::path write(const std::string& relative, const std::string& content) const {
        const std::filesystem::path path = top_ / relative;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }

  private:
    std::filesystem::path top_;
    bool isMounted_ = false;
};

}  // namespace tamble
