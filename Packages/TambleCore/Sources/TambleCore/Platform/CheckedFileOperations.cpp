#include <TambleCore/Platform/CheckedFileOperations.h>
#include <TambleCore/Platform/FileProperties.h>

namespace tamble {

std::filesystem::path CheckedFileOperations::trash(const std::filesystem::path& item) {
    const bool wasThere = isThere(item);
    try {
        return real_.trash(item);
    } catch (const std::exception&) {
        if (!wasThere || isThere(item)) throw;
        if (auto landed = real_.findInTrash(item)) return *std::move(landed);
        throw;
    }
}

void CheckedFileOperations::move(const std::filesystem::path& from, const std::filesystem::path& to) {
    // A move never overwrites, so what appears there is what was moved.
    const bool wasFree = !isThere(to);
    try {
        real_.move(from, to);
    } catch (const std::exception&) {
        if (!wasFree || isThere(from) || !isThere(to)) throw;
    }
}

void CheckedFileOperations::remove(const std::filesystem::path& item) {
    const bool wasThere = isThere(item);
    try {
        real_.remove(item);
    } catch (const std::exception&) {
        if (!wasThere || isThere(item)) throw;
    }
}

void CheckedFileOperations::createDirectory(const std::filesystem::path& folder) {
    try {
        real_.createDirectory(folder);
    } catch (const std::exception&) {
        std::error_code error;
        if (!std::filesystem::is_directory(folder, error)) throw;
    }
}

void CheckedFileOperations::removeEmptyDirectory(const std::filesystem::path& folder) {
    const bool wasThere = isThere(folder);
    try {
        real_.removeEmptyDirectory(folder);
    } catch (const std::exception&) {
        if (!wasThere || isThere(folder)) throw;
    }
}

std::optional<std::filesystem::path> CheckedFileOperations::findInTrash(
    const std::filesystem::path& original) {
    return real_.findInTrash(original);
}

bool CheckedFileOperations::isNoBinError(const std::error_code& error) const {
    return real_.isNoBinError(error);
}

}  // namespace tamble
