#include <TambleCore/Jobs/StagingArea.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>
#include <TambleCore/Support/PathKey.h>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace tamble {
namespace {

constexpr Log engineLog("engine");

std::filesystem::path folderOf(const std::filesystem::path& target) {
    return standardized(target).parent_path();
}

}  // namespace

std::filesystem::path StagingArea::makePlace(std::size_t index, const std::filesystem::path& target) {
    const StagingFolder& folder = folderNear(target);
    const std::filesystem::path own = itemFolder(folder, index);
    if (::mkdir(own.c_str(), 0700) != 0) throwLastError("cannot create", own);
    const std::filesystem::path name = standardized(target).filename();
    const std::scoped_lock guard(lock_);
    items_[index] = {&folder, name.native()};
    return own / name;
}

std::filesystem::path StagingArea::placeOf(std::size_t index) const {
    const std::scoped_lock guard(lock_);
    const Item& item = items_.at(index);
    return itemFolder(*item.folder, index) / item.name;
}

void StagingArea::discard(std::size_t index) {
    std::filesystem::path own;
    {
        const std::scoped_lock guard(lock_);
        const auto item = items_.find(index);
        if (item == items_.end()) return;
        own = itemFolder(*item->second.folder, index);
        items_.erase(item);
    }
    // Empty, as a rule. What cannot be removed now goes with the staging folder.
    std::error_code ignored;
    if (::rmdir(own.c_str()) != 0) std::filesystem::remove_all(own, ignored);
}

void StagingArea::removeAll() {
    const std::scoped_lock guard(lock_);
    items_.clear();
    known_.clear();
    volumes_.clear();
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

std::filesystem::path StagingArea::itemFolder(const StagingFolder& folder, std::size_t index) {
    return folder.path() / std::to_string(index);
}

}  // namespace tamble
