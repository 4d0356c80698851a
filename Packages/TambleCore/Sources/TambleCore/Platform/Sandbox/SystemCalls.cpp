#include <TambleCore/Platform/Sandbox/Confinement.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <vector>

#include <sched.h>
#include <seccomp.h>
#include <unistd.h>

namespace tamble::sandbox {
namespace {

using Filter = std::unique_ptr<void, decltype(&seccomp_release)>;

/// What no decoder of files does. Everything else stays open: which harmless calls the libraries make changes
/// with their versions.
const std::vector<int>& refused() {
    static const std::vector<int> calls{
        // The network, and every other way to talk to somebody; io_uring would do so behind this filter.
        SCMP_SYS(socket), SCMP_SYS(socketpair), SCMP_SYS(connect), SCMP_SYS(bind), SCMP_SYS(listen),
        SCMP_SYS(accept), SCMP_SYS(accept4), SCMP_SYS(io_uring_setup), SCMP_SYS(io_uring_enter),
        SCMP_SYS(io_uring_register), SCMP_SYS(mq_open), SCMP_SYS(shmget), SCMP_SYS(msgget), SCMP_SYS(semget),
        // Other processes.
        SCMP_SYS(ptrace), SCMP_SYS(process_vm_readv), SCMP_SYS(process_vm_writev), SCMP_SYS(process_madvise),
        SCMP_SYS(kcmp), SCMP_SYS(pidfd_open), SCMP_SYS(pidfd_getfd), SCMP_SYS(pidfd_send_signal),
        SCMP_SYS(tkill), SCMP_SYS(rt_sigqueueinfo), SCMP_SYS(rt_tgsigqueueinfo), SCMP_SYS(setpriority),
        // What files are beside their bytes: Landlock leaves these open. fchmod stays, copying needs it.
        SCMP_SYS(chmod), SCMP_SYS(fchmodat), SCMP_SYS(chown), SCMP_SYS(fchown), SCMP_SYS(lchown),
        SCMP_SYS(fchownat), SCMP_SYS(setxattr), SCMP_SYS(lsetxattr), SCMP_SYS(fsetxattr),
        SCMP_SYS(removexattr), SCMP_SYS(lremovexattr), SCMP_SYS(fremovexattr), SCMP_SYS(utime),
        SCMP_SYS(utimes), SCMP_SYS(futimesat), SCMP_SYS(utimensat), SCMP_SYS(mknod), SCMP_SYS(mknodat),
        SCMP_SYS(open_by_handle_at), SCMP_SYS(name_to_handle_at),
        // Administration of the machine and its name spaces.
        SCMP_SYS(mount), SCMP_SYS(umount), SCMP_SYS(umount2), SCMP_SYS(move_mount), SCMP_SYS(open_tree),
        SCMP_SYS(fsopen), SCMP_SYS(fsmount), SCMP_SYS(fspick), SCMP_SYS(fsconfig), SCMP_SYS(mount_setattr),
        SCMP_SYS(pivot_root), SCMP_SYS(chroot), SCMP_SYS(unshare), SCMP_SYS(setns), SCMP_SYS(swapon),
        SCMP_SYS(swapoff), SCMP_SYS(quotactl), SCMP_SYS(acct), SCMP_SYS(reboot), SCMP_SYS(kexec_load),
        SCMP_SYS(kexec_file_load), SCMP_SYS(init_module), SCMP_SYS(finit_module), SCMP_SYS(delete_module),
        SCMP_SYS(settimeofday), SCMP_SYS(clock_settime), SCMP_SYS(clock_adjtime), SCMP_SYS(adjtimex),
        SCMP_SYS(sethostname), SCMP_SYS(setdomainname), SCMP_SYS(syslog), SCMP_SYS(ioperm), SCMP_SYS(iopl),
        // Doors into the kernel.
        SCMP_SYS(bpf), SCMP_SYS(perf_event_open), SCMP_SYS(userfaultfd), SCMP_SYS(keyctl), SCMP_SYS(add_key),
        SCMP_SYS(request_key), SCMP_SYS(fanotify_init), SCMP_SYS(lookup_dcookie), SCMP_SYS(personality)};
    return calls;
}

bool refuse(const Filter& filter, int call, int error, std::vector<scmp_arg_cmp> when = {}) {
    // A call that this processor does not have is refused as it is.
    const int added = seccomp_rule_add_array(filter.get(), SCMP_ACT_ERRNO(static_cast<std::uint16_t>(error)),
                                             call, static_cast<unsigned>(when.size()), when.data());
    return added == 0 || added == -EDOM;
}

/// Programs and child processes; threads stay possible. Newer C libraries make them with clone3, whose flags
/// a filter cannot see, and fall back to clone where it is missing.
bool refusePrograms(const Filter& filter) {
    constexpr std::array calls{SCMP_SYS(execve), SCMP_SYS(execveat), SCMP_SYS(fork), SCMP_SYS(vfork)};
    const scmp_arg_cmp noThread{0, SCMP_CMP_MASKED_EQ, CLONE_THREAD, 0};
    return std::ranges::all_of(calls, [&](int call) { return refuse(filter, call, EPERM); }) &&
           refuse(filter, SCMP_SYS(clone), EPERM, {noThread}) && refuse(filter, SCMP_SYS(clone3), ENOSYS);
}

bool addRules(const Filter& filter, const SandboxPolicy& policy) {
    const auto own = static_cast<scmp_datum_t>(::getpid());
    const scmp_arg_cmp notOwn{0, SCMP_CMP_NE, own, 0};
    const scmp_arg_cmp notSelf{0, SCMP_CMP_NE, 0, 0};
    return std::ranges::all_of(refused(), [&](int call) { return refuse(filter, call, EPERM); }) &&
           (policy.mayStartPrograms || refusePrograms(filter)) &&
           // abort() signals its own process.
           refuse(filter, SCMP_SYS(kill), EPERM, {notOwn}) &&
           refuse(filter, SCMP_SYS(tgkill), EPERM, {notOwn}) &&
           refuse(filter, SCMP_SYS(prlimit64), EPERM, {notSelf});
}

}  // namespace

bool confineCalls(const SandboxPolicy& policy) {
    const Filter filter(seccomp_init(SCMP_ACT_ALLOW), &seccomp_release);
    return filter != nullptr && addRules(filter, policy) && seccomp_load(filter.get()) == 0;
}

}  // namespace tamble::sandbox
