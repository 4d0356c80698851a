#include <TambleCore/Support/LoadedModule.h>

#include <filesystem>
#include <stdexcept>

#include <dlfcn.h>

namespace tamble {
namespace {

std::filesystem::path folderOfThisLibrary() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&moduleSymbol), &info) == 0 || info.dli_fname == nullptr)
        return {};
    return std::filesystem::absolute(info.dli_fname).parent_path();
}

std::runtime_error loaderError() {
    const char* words = dlerror();
    return std::runtime_error(words == nullptr ? "The module could not be loaded." : words);
}

}  // namespace

void* moduleSymbol(const std::string& moduleFileName, const char* symbol) {
    const auto file = folderOfThisLibrary() / moduleFileName;
    // Never closed: the picture libraries do not survive being unloaded.
    void* handle = dlopen(file.c_str(), RTLD_NOW | RTLD_GLOBAL);
    if (handle == nullptr) throw loaderError();
    void* address = dlsym(handle, symbol);
    if (address == nullptr) throw loaderError();
    return address;
}

}  // namespace tamble
