#include <Tamble/Desktop/Gallery/PrivateHome.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace tamble::gallery {

PrivateHome::PrivateHome() {
    std::string name = (std::filesystem::temp_directory_path() / "tamble-gallery-XXXXXX").native();
    if (::mkdtemp(name.data()) == nullptr) throw std::system_error(errno, std::generic_category(), name);
    folder_ = name;
    ::setenv("HOME", folder_.c_str(), 1);
    for (const char* own : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        ::unsetenv(own);
}

PrivateHome::~PrivateHome() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

}  // namespace tamble::gallery
