#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Platform/DirectoryListing.h>
#include <TambleCore/Platform/FinderOrder.h>
#include <TambleCore/Previews/PreviewResult.h>

#include <numeric>

#include <fcntl.h>

namespace tamble {
namespace {

InputFile fileAt(const std::filesystem::path& path, std::int64_t byteSize) {
    return {.url = path,
            .root = path.parent_path(),
            .byteSize = byteSize,
            .contentType = FileTypes::contentType(path),
            .isLoose = true};
}

std::vector<InputFile> filesBelow(const std::filesystem::path& path) {
    std::error_code error;
    const FileDescriptor folder = openFolder(AT_FDCWD, path.c_str(), error);
    if (!folder) return {};
    const auto listing = DirectoryListing::read(folder, error);
    if (!listing) return {};
    std::vector<InputFile> files;
    for (const std::size_t index : FinderOrder().sorted(listing->names())) {
        const std::string name(listing->name(index));
        const auto properties = itemProperties(folder.number(), name.c_str());
        if (properties.kind == ItemKind::regularFile)
            files.push_back(fileAt(path / name, properties.byteSize));
    }
    return files;
}

/// Whoever wrote them decoded untrusted files: nothing but plain files is taken.
std::vector<InputFile> filesAt(const std::filesystem::path& path) {
    const auto properties = itemProperties(AT_FDCWD, path.c_str());
    if (properties.kind == ItemKind::regularFile) return {fileAt(path, properties.byteSize)};
    if (properties.kind == ItemKind::folder) return filesBelow(path);
    return {};
}

}  // namespace

PreviewResult::PreviewResult(SkipReason reason) : skipped_(std::move(reason)) {}

PreviewResult::PreviewResult(PreviewPlace place, std::string name, std::optional<ItemNote> note)
    : place_(std::move(place)), name_(std::move(name)), files_(filesAt(place_->path())), note_(note) {}

std::int64_t PreviewResult::byteSize() const {
    return std::accumulate(files_.begin(), files_.end(), std::int64_t{0},
                           [](std::int64_t sum, const InputFile& file) { return sum + file.byteSize; });
}

}  // namespace tamble
