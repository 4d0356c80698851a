#include <TambleCore/Jobs/Isolation/WorkerExecutable.h>

#include <array>

#include <dlfcn.h>
#include <unistd.h>

namespace tamble {
namespace {

constexpr const char* programName = "tamble-worker";

std::filesystem::path folderOfThisLibrary() {
    Dl_info info{};
    if (::dladdr(reinterpret_cast<const void*>(&workerExecutable), &info) == 0 || info.dli_fname == nullptr)
        return {};
    // /lib may be a link to /usr/lib.
    std::error_code none;
    return std::filesystem::canonical(info.dli_fname, none).parent_path();
}

}  // namespace

std::optional<std::filesystem::path> workerExecutable() {
    std::error_code none;
    const auto running = std::filesystem::read_symlink("/proc/self/exe", none);
    const auto library = folderOfThisLibrary();
    for (const auto& candidate :
         std::array{running.parent_path() / programName, library.parent_path() / "bin" / programName,
                    library.parent_path() / "libexec/tamble" / programName}) {
        if (::access(candidate.c_str(), X_OK) == 0) return candidate;
    }
    return std::nullopt;
}

}  // namespace tamble
