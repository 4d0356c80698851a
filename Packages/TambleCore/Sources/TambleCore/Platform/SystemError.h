#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace tamble {

/// The system's last error (errno); take it before any other call.
std::error_code lastSystemError() noexcept;

/// Throws std::filesystem::filesystem_error with the system's last error.
[[noreturn]] void throwLastError(const char* action, const std::filesystem::path& path);
[[noreturn]] void throwLastError(const char* action, const std::filesystem::path& path,
                                 const std::filesystem::path& other);

/// The cause of an error as the system words it, without paths: "No space left on device".
std::string causeOf(const std::exception& error);

}  // namespace tamble
