#include <TambleCore/Jobs/UndoRecord.h>
#include <TambleCore/Platform/FileState.h>
#include <TambleCore/Support/PathKey.h>
#include <TambleCore/Support/Text.h>

#include <cmath>

namespace tamble {

std::optional<FileFingerprint> FileFingerprint::of(const std::filesystem::path& path) {
    const auto state = FileState::of(standardized(path), FileState::Links::stay);
    if (!state) return std::nullopt;
    return FileFingerprint{
        .size = state->size,
        .modified = static_cast<double>(state->seconds) + static_cast<double>(state->nanoseconds) / 1e9};
}

bool operator==(const FileFingerprint& a, const FileFingerprint& b) {
    return a.size == b.size && std::abs(a.modified - b.modified) < 0.001;
}

FilePath fingerprintKey(const FilePath& path) {
    return printable(path.native()) == path.native() ? path : fileURL(path);
}

}  // namespace tamble
