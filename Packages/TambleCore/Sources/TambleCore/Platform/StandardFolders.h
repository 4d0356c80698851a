#pragma once

#include <filesystem>

/// The user's folders by the XDG base and user directory specifications.
namespace tamble::folders {

std::filesystem::path home();
/// Where the program keeps its own files: "$XDG_DATA_HOME/tamble". Not created by asking.
std::filesystem::path applicationSupport();
/// Where the program keeps preferences: "$XDG_CONFIG_HOME/tamble".
std::filesystem::path preferences();
/// "$XDG_CACHE_HOME/tamble".
std::filesystem::path caches();
/// The user's Downloads folder as the desktop names it; "Downloads" in the home folder if it names none.
std::filesystem::path downloads();
std::filesystem::path temporary();

}  // namespace tamble::folders
