#include <TambleCore/Platform/Volume.h>
#include <TambleCore/Support/PathKey.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace tamble {

std::optional<Volume> Volume::of(const std::filesystem::path& path) {
    // The device alone is not enough: renaming between two mounts of one device is refused.
    struct statx properties {};
    if (::statx(AT_FDCWD, path.c_str(), AT_NO_AUTOMOUNT, STATX_MNT_ID, &properties) != 0) return std::nullopt;
    Volume volume;
    volume.device = (std::uint64_t{properties.stx_dev_major} << 32U) | properties.stx_dev_minor;
    if ((properties.stx_mask & STATX_MNT_ID) != 0) volume.mount = properties.stx_mnt_id;
    return volume;
}

std::filesystem::path nearestExisting(const std::filesystem::path& path) {
    std::filesystem::path nearest = standardized(path);
    std::error_code error;
    while (nearest.has_relative_path() && !std::filesystem::exists(nearest, error)) {
        nearest = nearest.parent_path();
    }
    return nearest;
}

std::filesystem::path topOfVolume(const std::filesystem::path& folder) {
    std::filesystem::path top = std::filesystem::canonical(folder);
    const auto volume = Volume::of(top);
    while (top.has_relative_path() && Volume::of(top.parent_path()) == volume) top = top.parent_path();
    return top;
}

}  // namespace tamble
