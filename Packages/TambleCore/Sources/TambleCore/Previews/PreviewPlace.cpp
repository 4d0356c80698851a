#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Previews/PreviewPlace.h>
#include <TambleCore/Support/Failure.h>

namespace tamble {

PreviewPlace::PreviewPlace(std::shared_ptr<StagingArea> area, std::size_t index, std::filesystem::path path)
    : area_(std::move(area)), index_(index), path_(std::move(path)) {}

PreviewPlace::~PreviewPlace() {
    if (area_) area_->discard(index_);
}

PreviewPlaces::PreviewPlaces() : area_(std::make_shared<StagingArea>()) {
    removeStaleStagingFolders();
}

PreviewPlace PreviewPlaces::make(const std::string& name) {
    const std::scoped_lock lock(mutex_);
    const std::size_t index = next_++;
    try {
        const auto target = folders::caches() / name;
        auto path = area_->makePlace(index, target);
        if (!isOwnFolder(path.parent_path())) {
            // Caches are tidied while the program runs.
            area_ = std::make_shared<StagingArea>();
            path = area_->makePlace(index, target);
        }
        return {area_, index, std::move(path)};
    } catch (const std::filesystem::filesystem_error& error) {
        throw Failure("cannotCreateFolder", "There is no room for previews on this computer.",
                      causeOf(error));
    }
}

}  // namespace tamble
