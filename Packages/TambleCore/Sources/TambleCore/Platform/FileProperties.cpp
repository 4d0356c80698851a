#include <TambleCore/Platform/FileProperties.h>

#include <sys/stat.h>
#include <unistd.h>

namespace tamble {

bool isThere(const std::filesystem::path& path) {
    return inodeOf(path).has_value();
}

std::optional<std::uint64_t> inodeOf(const std::filesystem::path& path) {
    return inodeAt(standardized(path).c_str());
}

std::optional<std::uint64_t> inodeAt(const char* place) {
    struct stat properties {};
    if (::lstat(place, &properties) != 0) return std::nullopt;
    return properties.st_ino;
}

bool isOwnFolder(const std::filesystem::path& folder) {
    struct stat properties {};
    return ::lstat(folder.c_str(), &properties) == 0 && S_ISDIR(properties.st_mode) &&
           properties.st_uid == ::getuid();
}

}  // namespace tamble
