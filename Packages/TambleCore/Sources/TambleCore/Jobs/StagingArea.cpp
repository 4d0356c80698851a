#include <TambleCore/Jobs/StagingArea.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>
#include <TambleCore/Support/PathKey.h>

#include <algorithm>
#include <cerrno>

#include <unistd.h>

namespace tamble {
namespace {

constexpr Log engineLog("engine");

std::filesystem::path folderOf(const std::filesystem::path& target) {
    return standardized(target).parent_path();
}

}  // namespace

std::filesystem::path StagingArea::makePlace(std::size_t index, const std::filesystem::path& target) {
    // Longer ones are no extensions, and might not fit behind the number.
    constexpr std::size_t longestExtension = 32;
    const StagingFolder& folder = folderNear(target);
    std::string extension = standardized(target).extension().native();
    if (extension.size() > longestExtension) extension.clear();
    const std::scoped_lock guard(lock_);
    const Item& item = items_[index] = {&folder, std::move(extension)};
    return place(index, item);
}

std::filesystem::path StagingArea::placeOf(std::size_t index) const {
    const std::scoped_lock guard(lock_);
    return place(index, items_.at(index));
}

void StagingArea::discard(std::size_t index) {
    std::filesystem::path left;
    {
        const std::scoped_lock guard(lock_);
        const auto item = items_.find(index);
        if (item == items_.end()) return;
        left = place(index, item->second);
        items_.erase(item);
    }
    // Gone already, as a rule. What cannot be removed now goes with the staging folder.
    std::error_code ignored;
    if (::unlink(left.c_str()) != 0 && errno != ENOENT) std::filesystem::remove_all(left, ignored);
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

std::filesystem::path StagingArea::place(std::size_t index, const Item& item) {
    return item.folder->path() / (std::to_string(index) + item.extension);
}

}  // namespace tamble
