#include <TambleCore/Platform/SystemError.h>

#include <cerrno>

namespace tamble {

std::error_code lastSystemError() noexcept {
    return {errno, std::generic_category()};
}

void throwLastError(const char* action, const std::filesystem::path& path) {
    throw std::filesystem::filesystem_error(action, path, lastSystemError());
}

void throwLastError(const char* action, const std::filesystem::path& path,
                    const std::filesystem::path& other) {
    throw std::filesystem::filesystem_error(action, path, other, lastSystemError());
}

std::string causeOf(const std::exception& error) {
    if (const auto* systemError = dynamic_cast<const std::system_error*>(&error)) {
        return systemError->code().message();
    }
    return error.what();
}

}  // namespace tamble
