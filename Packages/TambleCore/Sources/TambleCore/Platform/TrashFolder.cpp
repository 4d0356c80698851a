#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Platform/Trash.h>
#include <TambleCore/Platform/TrashFolder.h>
#include <TambleCore/Platform/Volume.h>

#include <cerrno>
#include <optional>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace tamble {
namespace {

/// A private folder of the user's, made if it is missing; false for a link and for somebody else's. A full
/// disk is an error, since it can have a Bin.
bool makePrivateFolder(const std::filesystem::path& folder) {
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) {
        if (errno == ENOSPC || errno == EDQUOT) throwLastError("cannot create", folder);
        return false;
    }
    return isOwnFolder(folder);
}

/// Whether the administrator's Bin for all users of a volume may be used: a real folder in which nobody can
/// remove what is not theirs.
bool isSharedBin(const std::filesystem::path& folder) {
    struct stat properties {};
    return ::lstat(folder.c_str(), &properties) == 0 && S_ISDIR(properties.st_mode) &&
           (properties.st_mode & S_ISVTX) != 0;
}

bool prepare(const TrashFolder& bin) {
    return makePrivateFolder(bin.folder) && makePrivateFolder(bin.files()) && makePrivateFolder(bin.info()) &&
           ::access(bin.files().c_str(), W_OK) == 0 && ::access(bin.info().c_str(), W_OK) == 0;
}

std::filesystem::path homeBin() {
    return folders::applicationSupport().parent_path() / "Trash";
}

std::optional<TrashFolder> prepareHomeBin() {
    TrashFolder bin{.folder = homeBin(), .top = {}};
    std::error_code error;
    std::filesystem::create_directories(bin.folder.parent_path(), error);
    if (error || !prepare(bin)) return std::nullopt;
    return bin;
}

std::optional<TrashFolder> prepareVolumeBin(const std::filesystem::path& top) {
    const std::string user = std::to_string(::getuid());
    if (isSharedBin(top / ".Trash")) {
        TrashFolder bin{.folder = top / ".Trash" / user, .top = top};
        if (prepare(bin)) return bin;
    }
    TrashFolder bin{.folder = top / (".Trash-" + user), .top = top};
    if (prepare(bin)) return bin;
    return std::nullopt;
}

}  // namespace

TrashFolder TrashFolder::forItemsOf(const std::filesystem::path& folder) {
    const auto volume = Volume::of(folder);
    const bool isHomeVolume = volume == Volume::of(nearestExisting(homeBin()));
    auto bin = isHomeVolume ? prepareHomeBin() : prepareVolumeBin(topOfVolume(folder));
    if (!bin) throw std::filesystem::filesystem_error("cannot move to the Bin", folder, trash::noBin());
    return *std::move(bin);
}

}  // namespace tamble
