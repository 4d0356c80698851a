#include <Tamble/Model/GoneFiles.h>

#include <filesystem>

namespace tamble {

std::vector<std::size_t> goneFiles(std::span<const InputFile> files) {
    std::vector<std::size_t> gone;
    for (std::size_t i = 0; i < files.size(); ++i) {
        std::error_code error;
        const auto kind = std::filesystem::symlink_status(files[i].url.path(), error).type();
        if (kind == std::filesystem::file_type::not_found) gone.push_back(i);
    }
    return gone;
}

}  // namespace tamble
