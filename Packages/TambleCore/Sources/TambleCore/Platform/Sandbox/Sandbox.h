#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace tamble {

/// What a process that decodes untrusted files may still do.
struct SandboxPolicy {
    /// Folders below which files may be written, created, renamed and removed.
    std::vector<std::filesystem::path> writable;
    /// How many bytes of its own memory it may take (RLIMIT_DATA); 0 for no limit.
    std::uint64_t memoryLimit = 0;
    /// It may start programs, which stay confined as it is.
    bool mayStartPrograms = false;
    /// How long a file it may write, in bytes.
    std::uint64_t fileSizeLimit = std::uint64_t{16} << 30U;
};

/// Which confinements the kernel granted. The resource limits hold everywhere.
struct SandboxReport {
    /// Writing is confined to the policy's folders (Landlock).
    bool confinesFiles = false;
    /// No network, no programs, no other processes, no administration (seccomp).
    bool confinesCalls = false;
};

/// Confines this process for good. To be called while it has a single thread: threads that run already stay
/// free. Reading files stays possible everywhere.
SandboxReport enterSandbox(const SandboxPolicy& policy);

}  // namespace tamble
