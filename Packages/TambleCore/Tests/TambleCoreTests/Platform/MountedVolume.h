#pragma once

#include <TambleCoreTests/TestFolder.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace tamble {

/// Another volume: a file system in memory, where the test may mount one. It is seen by the test program
/// alone, and gone with it.
class MountedVolume {
  public:
    explicit MountedVolume(const std::filesystem::path& parent, const char* options = "size=16m,mode=0755",
                           const char* name = "volume")
        : top_(parent / name) {
        if (!mayMount()) return;
        std::filesystem::create_directories(top_);
        isMounted_ = ::mount("tamble-test", top_.c_str(), "tmpfs", MS_NOSUID | MS_NODEV, options) == 0;
    }
    ~MountedVolume() { unmount(); }
    MountedVolume(const MountedVolume&) = delete;
    MountedVolume& operator=(const MountedVolume&) = delete;

    explicit operator bool() const { return isMounted_; }
    const std::filesystem::path& top() const { return top_; }
    bool makeReadOnly() const { return remount(MS_RDONLY); }
    bool makeWritable() const { return remount(0); }
    void unmount() {
        if (isMounted_) ::umount2(top_.c_str(), MNT_DETACH);
        isMounted_ = false;
    }

    std::filesystem::path write(const std::string& relative, const std::string& content) const {
        const std::filesystem::path path = top_ / relative;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }
    /// Takes all the space that is left.
    void fill() const {
        std::ofstream filler(top_ / ".filler", std::ios::binary | std::ios::app);
        const std::string page(4096, 'f');
        while (filler << page << std::flush) {
        }
    }

  private:
    bool remount(unsigned long flags) const {
        return ::mount("tamble-test", top_.c_str(), "tmpfs", MS_REMOUNT | flags, nullptr) == 0;
    }
    /// In a mount namespace of its own, and where that takes more rights, in a user namespace of its own too.
    static bool mayMount() {
        static const bool isAllowed = [] {
            const std::string user = std::to_string(::getuid()), group = std::to_string(::getgid());
            if (::unshare(CLONE_NEWNS) != 0) {
                if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
                std::ofstream("/proc/self/setgroups") << "deny";
                std::ofstream("/proc/self/uid_map") << user << " " << user << " 1";
                std::ofstream("/proc/self/gid_map") << group << " " << group << " 1";
            }
            return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        }();
        return isAllowed;
    }

    std::filesystem::path top_;
    bool isMounted_ = false;
};

}  // namespace tamble
