#include <TambleCore/Platform/FileState.h>

#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>

namespace tamble {
namespace {

std::optional<struct stat> propertiesOf(const std::filesystem::path& path, FileState::Links links) {
    struct stat properties {};
    const int flags = links == FileState::Links::stay ? AT_SYMLINK_NOFOLLOW : 0;
    if (::fstatat(AT_FDCWD, path.c_str(), &properties, flags) != 0) return std::nullopt;
    return properties;
}

void add(FileState& whole, const struct stat& part) {
    if (!S_ISDIR(part.st_mode)) whole.size += part.st_size;
    const auto time = std::tie(whole.seconds, whole.nanoseconds);
    if (std::tie(part.st_mtim.tv_sec, part.st_mtim.tv_nsec) > time) {
        whole.seconds = part.st_mtim.tv_sec;
        whole.nanoseconds = part.st_mtim.tv_nsec;
    }
}

}  // namespace

std::optional<FileState> FileState::of(const std::filesystem::path& path, Links links) {
    const auto properties = propertiesOf(path, links);
    if (!properties) return std::nullopt;
    FileState whole{.seconds = properties->st_mtim.tv_sec, .nanoseconds = properties->st_mtim.tv_nsec};
    add(whole, *properties);
    if (!S_ISDIR(properties->st_mode)) return whole;
    std::error_code error;
    for (std::filesystem::recursive_directory_iterator entry(path, error), end; !error && entry != end;
         entry.increment(error)) {
        if (const auto inside = propertiesOf(entry->path(), Links::stay)) add(whole, *inside);
    }
    return whole;
}

}  // namespace tamble
