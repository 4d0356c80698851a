#include <TambleCore/Platform/MoveItem.h>
#include <TambleCore/Platform/RecentlyTrashed.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Platform/SystemFileOperations.h>
#include <TambleCore/Platform/Trash.h>
#include <TambleCore/Support/PathKey.h>

#include <cerrno>

#include <unistd.h>

namespace tamble {

std::filesystem::path SystemFileOperations::trash(const std::filesystem::path& item) {
    return trash::put(item);
}

void SystemFileOperations::move(const std::filesystem::path& from, const std::filesystem::path& to) {
    const auto note = trash::noteOf(from);
    moveItem(standardized(from), standardized(to));
    if (note) ::unlink(note->c_str());
}

void SystemFileOperations::remove(const std::filesystem::path& item) {
    const std::filesystem::path place = standardized(item);
    if (::unlink(place.c_str()) == 0) return;
    // What a folder answers: EISDIR here, EPERM by POSIX.
    if (errno != EISDIR && errno != EPERM) throwLastError("cannot remove", place);
    std::filesystem::remove_all(place);
}

void SystemFileOperations::createDirectory(const std::filesystem::path& folder) {
    std::filesystem::create_directories(standardized(folder));
}

void SystemFileOperations::removeEmptyDirectory(const std::filesystem::path& folder) {
    if (::rmdir(standardized(folder).c_str()) != 0) throwLastError("cannot remove", folder);
}

std::optional<std::filesystem::path> SystemFileOperations::findInTrash(
    const std::filesystem::path& original) {
    return RecentlyTrashed({}).placeOf(original);
}

bool SystemFileOperations::isNoBinError(const std::error_code& error) const {
    return error == trash::noBin();
}

}  // namespace tamble
