#include <TambleCore/Jobs/OutputAttributes.h>
#include <TambleCore/Jobs/OutputPlanner.h>

#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tamble {
namespace {

struct Attributes {
    mode_t mode = 0777;
    uid_t owner = static_cast<uid_t>(-1);
    gid_t group = static_cast<gid_t>(-1);
    std::optional<timespec> modified;
};

/// Who may do what with every one of the inputs; owner and time are those of the first.
std::optional<Attributes> commonAttributes(std::span<const InputFile> inputs, OutputTime time) {
    std::optional<Attributes> common;
    for (const InputFile& input : inputs) {
        struct stat properties {};
        if (::stat(originalOf(input).c_str(), &properties) != 0) continue;
        if (!common) {
            common = Attributes{.owner = properties.st_uid, .group = properties.st_gid};
            if (time == OutputTime::ofOriginal) common->modified = properties.st_mtim;
        }
        common->mode &= properties.st_mode;
    }
    // Not even readable by its owner, as the sum of several: nobody means that.
    if (common && inputs.size() > 1) common->mode |= S_IRUSR | S_IWUSR;
    return common;
}

/// A folder can be entered by those who may read it.
mode_t folderMode(mode_t fileMode) {
    return fileMode | ((fileMode & 0444U) >> 2U) | S_IRWXU;
}

void give(const std::filesystem::path& item, const Attributes& attributes) {
    struct stat properties {};
    if (::lstat(item.c_str(), &properties) != 0 || S_ISLNK(properties.st_mode)) return;
    const bool ownerDiffers = properties.st_uid != attributes.owner || properties.st_gid != attributes.group;
    if (ownerDiffers && ::chown(item.c_str(), attributes.owner, attributes.group) != 0) {
        static_cast<void>(::chown(item.c_str(), static_cast<uid_t>(-1), attributes.group) == 0);
    }
    const mode_t mode = S_ISDIR(properties.st_mode) ? folderMode(attributes.mode) : attributes.mode;
    static_cast<void>(::chmod(item.c_str(), mode));
    if (!attributes.modified) return;
    const std::array<timespec, 2> times{timespec{.tv_sec = 0, .tv_nsec = UTIME_OMIT}, *attributes.modified};
    static_cast<void>(::utimensat(AT_FDCWD, item.c_str(), times.data(), AT_SYMLINK_NOFOLLOW));
}

}  // namespace

void keepAttributes(std::span<const InputFile> inputs, const std::filesystem::path& output, OutputTime time) {
    const auto attributes = commonAttributes(inputs, time);
    if (!attributes) return;
    std::error_code error;
    if (std::filesystem::is_directory(std::filesystem::symlink_status(output, error))) {
        for (std::filesystem::recursive_directory_iterator entry(output, error), end; !error && entry != end;
             entry.increment(error)) {
            give(entry->path(), *attributes);
        }
    }
    give(output, *attributes);
}

}  // namespace tamble
