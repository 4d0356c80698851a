#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Platform/Sandbox/Confinement.h>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tamble::sandbox {
namespace {

// Of the third version of the interface; Debian 12's headers know two.
constexpr std::uint64_t accessTruncate = std::uint64_t{1} << 14U;

constexpr std::uint64_t writingOneFile = LANDLOCK_ACCESS_FS_WRITE_FILE;
constexpr std::uint64_t writing = writingOneFile | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                                  LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
                                  LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
                                  LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
                                  LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

long interfaceVersion() {
    return ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
}

bool allow(const FileDescriptor& ruleset, const std::filesystem::path& place, std::uint64_t access) {
    const FileDescriptor opened(::open(place.c_str(), O_PATH | O_CLOEXEC));
    if (!opened) return false;
    landlock_path_beneath_attr rule{};
    rule.allowed_access = access;
    rule.parent_fd = opened.number();
    return ::syscall(SYS_landlock_add_rule, ruleset.number(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
}

}  // namespace

bool confineWriting(std::span<const std::filesystem::path> folders) {
    const long version = interfaceVersion();
    if (version < 1) return false;
    landlock_ruleset_attr handled{};
    handled.handled_access_fs = writing;
    // Renaming from folder to folder is refused everywhere by the first version.
    if (version >= 2) handled.handled_access_fs |= LANDLOCK_ACCESS_FS_REFER;
    if (version >= 3) handled.handled_access_fs |= accessTruncate;
    const FileDescriptor ruleset(
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, &handled, sizeof handled, 0)));
    if (!ruleset) return false;
    // A folder that is missing stays closed.
    for (const auto& folder : folders) allow(ruleset, folder, handled.handled_access_fs);
    allow(ruleset, "/dev/null", writingOneFile | (handled.handled_access_fs & accessTruncate));
    return ::syscall(SYS_landlock_restrict_self, ruleset.number(), 0) == 0;
}

}  // namespace tamble::sandbox
