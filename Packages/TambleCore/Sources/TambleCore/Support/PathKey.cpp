#include <TambleCore/Support/PathKey.h>

namespace tamble {

std::filesystem::path standardized(const std::filesystem::path& path) {
    if (isPlainAbsolute(path.native()) && !namesFolder(path)) return path;
    std::filesystem::path result =
        (path.is_absolute() ? path : std::filesystem::current_path() / path).lexically_normal();
    if (!result.has_filename() && result.has_relative_path()) result = result.parent_path();
    return result;
}

std::string exactPathKey(const std::filesystem::path& path) {
    return precomposed(standardized(path).native());
}

std::string pathKey(const std::filesystem::path& path) {
    return lowercased(exactPathKey(path));
}

bool isPlainAbsolute(std::string_view path) {
    if (!path.starts_with('/')) return false;
    for (std::size_t slash = 0; slash != std::string_view::npos; slash = path.find('/', slash + 1)) {
        const char next = slash + 1 < path.size() ? path[slash + 1] : '\0';
        if (next == '/' || next == '.') return false;
    }
    return true;
}

bool namesFolder(const std::filesystem::path& path) {
    return !path.native().empty() && path.native().back() == '/';
}

}  // namespace tamble
