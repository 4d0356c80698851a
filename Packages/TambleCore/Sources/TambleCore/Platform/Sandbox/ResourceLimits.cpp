#include <TambleCore/Platform/Sandbox/Confinement.h>

#include <csignal>
#include <fstream>

#include <sys/prctl.h>
#include <sys/resource.h>

namespace tamble::sandbox {
namespace {

/// Of -1000…1000, as proc(5) tells; an ordinary program has 0.
constexpr int outOfMemoryScore = 800;

void limit(__rlimit_resource_t resource, rlim_t most) {
    rlimit current{};
    if (::getrlimit(resource, &current) != 0) return;
    // A stricter limit of the user's own stays.
    if (current.rlim_max != RLIM_INFINITY && current.rlim_max < most) most = current.rlim_max;
    const rlimit wanted{.rlim_cur = most, .rlim_max = most};
    ::setrlimit(resource, &wanted);
}

}  // namespace

void limitResources(const SandboxPolicy& policy) {
    std::ofstream("/proc/self/oom_score_adj") << outOfMemoryScore;
    limit(RLIMIT_CORE, 0);
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    limit(RLIMIT_FSIZE, policy.fileSizeLimit);
    // Writing too much is an error like a full disk, no reason to die.
    std::signal(SIGXFSZ, SIG_IGN);
    // Not the address space: that would count mapped inputs and what the allocator merely reserves.
    if (policy.memoryLimit != 0) limit(RLIMIT_DATA, policy.memoryLimit);
}

}  // namespace tamble::sandbox
