#include <TambleCore/Jobs/UndoRecord.h>
#include <TambleCore/Support/PathKey.h>
#include <TambleCore/Support/Text.h>

#include <algorithm>
#include <cmath>

#include <sys/stat.h>

namespace tamble {
namespace {

std::optional<struct stat> propertiesOf(const std::filesystem::path& path) {
    struct stat properties {};
    if (::lstat(path.c_str(), &properties) != 0) return std::nullopt;
    return properties;
}

double secondsOf(const timespec& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

FileFingerprint fingerprint(const struct stat& properties) {
    return {.size = S_ISDIR(properties.st_mode) ? 0 : std::int64_t{properties.st_size},
            .modified = secondsOf(properties.st_mtim)};
}

}  // namespace

std::optional<FileFingerprint> FileFingerprint::of(const std::filesystem::path& path) {
    const std::filesystem::path place = standardized(path);
    const auto properties = propertiesOf(place);
    if (!properties) return std::nullopt;
    FileFingerprint whole = fingerprint(*properties);
    if (!S_ISDIR(properties->st_mode)) return whole;
    std::error_code error;
    for (std::filesystem::recursive_directory_iterator entry(place, error), end; !error && entry != end;
         entry.increment(error)) {
        const auto inside = propertiesOf(entry->path());
        if (!inside) continue;
        const FileFingerprint part = fingerprint(*inside);
        whole.size += part.size;
        whole.modified = std::max(whole.modified, part.modified);
    }
    return whole;
}

bool operator==(const FileFingerprint& a, const FileFingerprint& b) {
    return a.size == b.size && std::abs(a.modified - b.modified) < 0.001;
}

FilePath fingerprintKey(const FilePath& path) {
    return printable(path.native()) == path.native() ? path : fileURL(path);
}

}  // namespace tamble
