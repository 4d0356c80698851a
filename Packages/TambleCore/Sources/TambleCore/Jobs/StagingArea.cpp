#include <TambleCore/Jobs/StagingArea.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>
#include <TambleCore/Support/PathKey.h>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>

namespace tamble {
namespace {

constexpr Log engineLog("engine");

std::filesystem::path folderOf(const std::filesystem::path& target) {
    return standardized(target).parent_path();
}

}  // namespace

StagingArea::~StagingArea() = default;

std::filesystem::path StagingArea::placeFor(std::size_t index, const std::filesystem::path& target) {
    const std::filesystem::path folder = folderNear(target).path() / std::to_string(index);
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) throwLastError("cannot create", folder);
    return folder / standardized(target).filename();
}

std::filesystem::path StagingArea::existingPlaceFor(std::size_t index, const std::filesystem::path& target) const {
    return itemFolder(index, target) / standardized(target).filename();
}

void StagingArea::discard(std::size_t index, const std::filesystem::path& target) {
    const std::filesystem::path folder = itemFolder(index, target);
    std::error_code ignored;
    if (!folder.empty()) std::filesystem::remove_all(folder, ignored);
}

const StagingFolder& StagingArea::folderNear(const std::filesystem::path& target) {
    const std::filesystem::path near = folderOf(target);
    const std::scoped_lock guard(lock_);
    if (const auto found = known_.find(near.native()); found != known_.end()) return *found->second;
    if (const auto found = refused_.find(near.native()); found != refused_.end()) {
        throw std::filesystem::filesystem_error("cannot create a staging folder", near, found->second);
    }
    const auto volume = Volume::of(nearestExisting(near));
    auto found = std::ranges::find(volumes_, volume, &OnVolume::volume);
    if (found == volumes_.end()) {
        try {
            volumes_.push_back({volume, StagingFolder::makeNear(near)});
        } catch (const std::filesystem::filesystem_error& error) {
            engineLog.error("Couldn't create staging folder: {}", causeOf(error));
            refused_.emplace(near.native(), error.code());
            throw;
        }
        found = std::prev(volumes_.end());
    }
    known_.emplace(near.native(), &found->folder);
    return found->folder;
}

std::filesystem::path StagingArea::itemFolder(std::size_t index, const std::filesystem::path& target) const {
    const std::scoped_lock guard(lock_);
    const auto found = known_.find(folderOf(target).native());
    return found == known_.end() ? std::filesystem::path() : found->second->path() / std::to_string(index);
}

}  // namespace tamble
