#include <TambleCore/Support/PathKey.h>
#include <TambleCore/Support/Text.h>

namespace tamble {

std::filesystem::path standardized(const std::filesystem::path& path) {
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

bool namesFolder(const std::filesystem::path& path) {
    return !path.native().empty() && path.native().back() == '/';
}

}  // namespace tamble
