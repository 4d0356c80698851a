#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Support/PathKey.h>

#include <sys/stat.h>

namespace tamble {

bool isThere(const std::filesystem::path& path) {
    return inodeOf(path).has_value();
}

std::optional<std::uint64_t> inodeOf(const std::filesystem::path& path) {
    struct stat properties {};
    if (::lstat(standardized(path).c_str(), &properties) != 0) return std::nullopt;
    return properties.st_ino;
}

}  // namespace tamble
