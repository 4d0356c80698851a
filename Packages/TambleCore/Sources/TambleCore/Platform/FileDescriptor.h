#pragma once

#include <string>
#include <utility>

namespace tamble {

/// Owns one open file descriptor of the system and closes it; -1 stands for none.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) noexcept : number_(number) {}
    ~FileDescriptor();
    FileDescriptor(FileDescriptor&& other) noexcept : number_(other.release()) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }

    explicit operator bool() const noexcept { return number_ >= 0; }
    int number() const noexcept { return number_; }
    int release() noexcept { return std::exchange(number_, -1); }

  private:
    int number_ = -1;
};

/// Up to `length` bytes from the start of the regular file `name` in the open folder `folder` (or AT_FDCWD);
/// empty when it is no regular file or cannot be read. Never waits for the other end of a pipe.
std::string firstBytes(int folder, const char* name, std::size_t length);

}  // namespace tamble
