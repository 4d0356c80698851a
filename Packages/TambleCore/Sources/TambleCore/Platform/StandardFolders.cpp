#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Support/Text.h>

#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include <pwd.h>
#include <unistd.h>

namespace tamble::folders {
namespace {

constexpr const char* programName = "tamble";

/// Relative paths in these variables are to be ignored, says the base directory specification.
std::optional<std::filesystem::path> absoluteFrom(const char* variable) {
    const char* value = std::getenv(variable);
    if (value == nullptr || *value != '/') return std::nullopt;
    return std::filesystem::path(value);
}

std::filesystem::path configuration() {
    return absoluteFrom("XDG_CONFIG_HOME").value_or(home() / ".config");
}

/// The value of a line `NAME="$HOME/…"` or `NAME="/…"`, the only two forms of user-dirs.dirs.
std::optional<std::filesystem::path> userFolder(std::string_view line, std::string_view variable) {
    line = trimmed(line);
    if (!line.starts_with(variable)) return std::nullopt;
    line = trimmed(line.substr(variable.size()));
    if (!line.starts_with('=')) return std::nullopt;
    line = trimmed(line.substr(1));
    if (line.size() < 2 || line.front() != '"' || line.back() != '"') return std::nullopt;
    line = line.substr(1, line.size() - 2);

    constexpr std::string_view homeVariable = "$HOME";
    const bool isBelowHome = line.starts_with(homeVariable);
    if (isBelowHome) line.remove_prefix(homeVariable.size());
    std::string path;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '\\' && i + 1 < line.size()) ++i;
        path += line[i];
    }
    while (path.ends_with('/')) path.pop_back();
    // The home folder itself is how the desktop says that there is no such folder.
    if (!path.starts_with('/')) return std::nullopt;
    return isBelowHome ? std::filesystem::path(home().native() + path) : std::filesystem::path(path);
}

}  // namespace

std::filesystem::path home() {
    if (const auto folder = absoluteFrom("HOME")) return *folder;
    if (const passwd* user = ::getpwuid(::getuid()); user != nullptr && user->pw_dir != nullptr)
        return user->pw_dir;
    return "/";
}

std::filesystem::path applicationSupport() {
    return absoluteFrom("XDG_DATA_HOME").value_or(home() / ".local/share") / programName;
}

std::filesystem::path preferences() {
    return configuration() / programName;
}

std::filesystem::path caches() {
    return absoluteFrom("XDG_CACHE_HOME").value_or(home() / ".cache") / programName;
}

std::filesystem::path downloads() {
    std::ifstream file(configuration() / "user-dirs.dirs");
    std::optional<std::filesystem::path> found;
    for (std::string line; std::getline(file, line);) {
        if (auto folder = userFolder(line, "XDG_DOWNLOAD_DIR")) found = std::move(folder);
    }
    if (found && *found != home()) return *found;
    return home() / "Downloads";
}

std::filesystem::path temporary() {
    std::error_code error;
    auto folder = std::filesystem::temp_directory_path(error);
    return error ? "/tmp" : folder;
}

}  // namespace tamble::folders
