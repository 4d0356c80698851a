#include <TambleCore/Platform/DirectoryListing.h>

#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace tamble {
namespace {

struct CloseDirectory {
    void operator()(DIR* directory) const { ::closedir(directory); }
};

std::error_code lastError() noexcept {
    return {errno, std::generic_category()};
}

ItemKind kindOfMode(mode_t mode) noexcept {
    if (S_ISREG(mode)) return ItemKind::regularFile;
    if (S_ISDIR(mode)) return ItemKind::folder;
    if (S_ISLNK(mode)) return ItemKind::symbolicLink;
    return ItemKind::other;
}

ItemKind kindOfEntry(int folder, const dirent& entry) noexcept {
    switch (entry.d_type) {
        case DT_REG:
            return ItemKind::regularFile;
        case DT_DIR:
            return ItemKind::folder;
        case DT_LNK:
            return ItemKind::symbolicLink;
        case DT_UNKNOWN:
            return itemProperties(folder, entry.d_name).kind;
        default:
            return ItemKind::other;
    }
}

}  // namespace

FileDescriptor openFolder(int parent, const char* name, std::error_code& error) noexcept {
    FileDescriptor folder(::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    error = folder ? std::error_code() : lastError();
    return folder;
}

ItemProperties itemProperties(int parent, const char* name) noexcept {
    struct stat properties {};
    if (::fstatat(parent, name, &properties, AT_SYMLINK_NOFOLLOW) != 0) return {};
    return {kindOfMode(properties.st_mode), properties.st_size};
}

std::optional<DirectoryListing> DirectoryListing::read(const FileDescriptor& folder, std::error_code& error) {
    // The stream closes what it is given, and the caller goes on using the folder.
    FileDescriptor own(::fcntl(folder.number(), F_DUPFD_CLOEXEC, 0));
    const std::unique_ptr<DIR, CloseDirectory> directory(own ? ::fdopendir(own.number()) : nullptr);
    if (!directory) {
        error = lastError();
        return std::nullopt;
    }
    own.release();

    DirectoryListing listing;
    for (;;) {
        errno = 0;
        const dirent* entry = ::readdir(directory.get());
        if (entry == nullptr) break;
        const std::string_view name(entry->d_name);
        if (name.starts_with('.')) continue;
        listing.kinds_.push_back(kindOfEntry(folder.number(), *entry));
        const auto zeroTerminated = std::span(entry->d_name, name.size() + 1);
        listing.text_.insert(listing.text_.end(), zeroTerminated.begin(), zeroTerminated.end());
    }
    error = lastError();
    if (error) return std::nullopt;

    // Only now does the text stay where it is.
    listing.names_.reserve(listing.kinds_.size());
    const char* next = listing.text_.data();
    for (std::size_t i = 0; i < listing.kinds_.size(); ++i) {
        next += listing.names_.emplace_back(next).size() + 1;
    }
    return listing;
}

}  // namespace tamble
