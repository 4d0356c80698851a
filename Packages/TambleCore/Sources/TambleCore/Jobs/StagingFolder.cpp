#include <TambleCore/Jobs/StagingFolder.h>
#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Platform/Volume.h>
#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/UUID.h>

#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace tamble {
namespace {

constexpr std::string_view lockExtension = ".lock";
constexpr std::string_view namePrefix = "TambleStaging-";
/// Of a folder that stands among the user's files.
constexpr std::string_view hiddenPrefix = ".TambleStaging-";

/// Where the lock files are: in the caches, or where those cannot be written, in the temporary folder.
std::vector<std::filesystem::path> registries() {
    return {folders::caches() / "staging",
            folders::temporary() / ("tamble-staging-" + std::to_string(::getuid()))};
}

std::filesystem::path makeRegistry() {
    std::error_code error;
    for (const auto& registry : registries()) {
        std::filesystem::create_directories(registry.parent_path(), error);
        if (::mkdir(registry.c_str(), 0700) != 0 && errno != EEXIST) {
            error = lastSystemError();
        } else if (isOwnFolder(registry) && ::access(registry.c_str(), W_OK | X_OK) == 0) {
            return registry;
        } else {
            error = std::make_error_code(std::errc::permission_denied);
        }
    }
    throw std::filesystem::filesystem_error("cannot create", registries().back(), error);
}

/// Where the folder may stand, the best place first.
std::vector<std::filesystem::path> placesFor(const std::filesystem::path& place,
                                             const std::filesystem::path& registry, const std::string& id) {
    const std::filesystem::path nearest = nearestExisting(place);
    const std::string hidden = std::string(hiddenPrefix) + id;
    const std::string plain = std::string(namePrefix) + id;
    std::vector<std::filesystem::path> places;
    if (Volume::of(nearest) == Volume::of(registry)) {
        places.push_back(registry / plain);
    } else {
        std::error_code error;
        const bool isFolder = std::filesystem::is_directory(nearest, error);
        places.push_back(topOfVolume(nearest) / hidden);
        places.push_back((isFolder ? nearest : nearest.parent_path()) / hidden);
    }
    places.push_back(folders::temporary() / plain);
    return places;
}

struct LockedEntry {
    std::filesystem::path lockFile;
    FileLock lock;
};

/// A lock file of our own. One that somebody tidied away between its making and its locking is no use.
LockedEntry makeEntry(const std::filesystem::path& registry, const std::string& id) {
    const std::filesystem::path lockFile = registry / (id + std::string(lockExtension));
    for (;;) {
        FileLock lock = FileLock::waitFor(lockFile);
        if (lock.isStillAt(lockFile)) return {lockFile, std::move(lock)};
    }
}

/// The entry says where the folder stands before there is one.
void writeEntry(const LockedEntry& entry, const std::filesystem::path& folder) {
    const std::string text = fileURL(folder) + "\n";
    const int file = entry.lock.fileNumber();
    if (::ftruncate(file, 0) != 0) throwLastError("cannot write", entry.lockFile);
    const ssize_t written = ::pwrite(file, text.data(), text.size(), 0);
    if (written == static_cast<ssize_t>(text.size())) return;
    if (written >= 0) errno = ENOSPC;
    throwLastError("cannot write", entry.lockFile);
}

/// Answers whether it is gone.
bool removeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::remove_all(folder, error);
    return !isThere(folder);
}

/// Whether the path that an entry names can be one of ours: never remove anything else, whatever the entry
/// says.
bool isStagingFolder(const std::filesystem::path& folder, const std::string& id) {
    const std::string name = folder.filename().native();
    if (name != std::string(namePrefix) + id && name != std::string(hiddenPrefix) + id) return false;
    return isOwnFolder(folder);
}

void removeIfStale(const std::filesystem::path& lockFile) {
    const auto lock = FileLock::tryTake(lockFile);
    if (!lock || !lock->isStillAt(lockFile)) return;
    std::string text = readWholeFile(lockFile);
    while (text.ends_with('\n')) text.pop_back();
    const std::string id = lockFile.stem().native();
    const auto folder = pathFromFileURL(text);
    if (folder && isStagingFolder(*folder, id) && !removeFolder(*folder)) return;
    ::unlink(lockFile.c_str());
}

}  // namespace

StagingFolder StagingFolder::makeNear(const std::filesystem::path& place) {
    const std::string id = newUUID();
    const std::filesystem::path registry = makeRegistry();
    LockedEntry entry = makeEntry(registry, id);
    std::error_code error;
    for (const auto& folder : placesFor(place, registry, id)) {
        writeEntry(entry, folder);
        if (::mkdir(folder.c_str(), 0700) == 0) {
            return StagingFolder(folder, std::move(entry.lockFile), std::move(entry.lock));
        }
        error = lastSystemError();
    }
    ::unlink(entry.lockFile.c_str());
    throw std::filesystem::filesystem_error("cannot create a staging folder", place, error);
}

StagingFolder::StagingFolder(std::filesystem::path path, std::filesystem::path lockFile, FileLock lock)
    : path_(std::move(path)), lockFile_(std::move(lockFile)), lock_(std::move(lock)) {}

StagingFolder::StagingFolder(StagingFolder&& other) noexcept
    : path_(std::exchange(other.path_, {})),
      lockFile_(std::move(other.lockFile_)),
      lock_(std::move(other.lock_)) {}

StagingFolder::~StagingFolder() {
    if (path_.empty()) return;
    // Of a folder that stays, for want of rights or of its disk, the next start is told.
    if (removeFolder(path_)) ::unlink(lockFile_.c_str());
}

void removeStaleStagingFolders() {
    std::vector<std::filesystem::path> entries;
    for (const auto& registry : registries()) {
        if (!isOwnFolder(registry)) continue;
        std::error_code error;
        for (std::filesystem::directory_iterator entry(registry, error), end; !error && entry != end;
             entry.increment(error)) {
            if (entry->path().extension() == lockExtension) entries.push_back(entry->path());
        }
    }
    for (const auto& lockFile : entries) {
        try {
            removeIfStale(lockFile);
        } catch (const std::exception&) {
            // The next start tries again.
        }
    }
}

}  // namespace tamble
