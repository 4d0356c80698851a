#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Platform/MappedFile.h>
#include <TambleCore/Platform/SystemError.h>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace tamble {

MappedFile::MappedFile(const std::filesystem::path& file) {
    const FileDescriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!opened) throwLastError("cannot open", file);
    struct stat properties {};
    if (::fstat(opened.number(), &properties) != 0) throwLastError("cannot read", file);
    const auto size = static_cast<std::size_t>(properties.st_size);
    if (size == 0) return;
    void* const place = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, opened.number(), 0);
    if (place == MAP_FAILED) throwLastError("cannot read", file);
    bytes_ = {static_cast<const std::byte*>(place), size};
}

MappedFile::~MappedFile() {
    if (!bytes_.empty()) ::munmap(const_cast<std::byte*>(bytes_.data()), bytes_.size());
}

}  // namespace tamble
