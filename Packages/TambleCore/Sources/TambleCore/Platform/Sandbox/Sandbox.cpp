#include <TambleCore/Platform/Sandbox/Confinement.h>
#include <TambleCore/Platform/Sandbox/Sandbox.h>

#include <sys/prctl.h>

namespace tamble {

SandboxReport enterSandbox(const SandboxPolicy& policy) {
    sandbox::limitResources(policy);
    // Both confinements are open to everyone only under this promise.
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    // Before the calls, since it needs one of those that are refused afterwards.
    const bool files = sandbox::confineWriting(policy.writable);
    return {.confinesFiles = files, .confinesCalls = sandbox::confineCalls(policy)};
}

}  // namespace tamble
