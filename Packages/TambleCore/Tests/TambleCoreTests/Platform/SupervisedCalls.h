#pragma once

#include <array>
#include <cerrno>
#include <exception>
#include <functional>
#include <future>
#include <memory>
#include <thread>

#include <poll.h>
#include <seccomp.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tamble {

/// Runs work on a thread whose calls that change the file system are answered here, so that a test can have a
/// system that fails.
class SupervisedCalls {
  public:
    /// As file systems without RENAME_NOREPLACE: renames that must not overwrite are refused.
    bool refusesExclusiveRename = false;
    /// Which call fails, with EIO; 0 for none.
    int faulty = 0;
    /// Whether the faulty call does what it was asked before it fails, where it changes names.
    bool actsAllTheSame = false;
    /// Called before each call; `number` is that of the system call.
    std::function<void(int number)> before = {};
    /// How many calls there were.
    int calls = 0;

    /// False when the system does not allow it. Throws what the work throws.
    bool run(const std::function<void()>& work) {
        std::promise<int> installed;
        std::exception_ptr thrown;
        std::thread worker([&] {
            const int listener = install();
            installed.set_value(listener);
            if (listener < 0) return;
            try {
                work();
            } catch (...) {
                thrown = std::current_exception();
            }
        });
        const int listener = installed.get_future().get();
        // Until the worker is gone.
        for (pollfd waiting{listener, POLLIN, 0}; listener >= 0 && ::poll(&waiting, 1, -1) >= 0;) {
            if ((waiting.revents & POLLIN) == 0) break;
            answer(listener);
        }
        worker.join();
        if (listener >= 0) ::close(listener);
        if (thrown) std::rethrow_exception(thrown);
        return listener >= 0;
    }

  private:
    static constexpr std::array names{SCMP_SYS(renameat2), SCMP_SYS(renameat), SCMP_SYS(rename),
                                      SCMP_SYS(unlink),    SCMP_SYS(unlinkat), SCMP_SYS(mkdir),
                                      SCMP_SYS(rmdir)};
    static constexpr std::array others{SCMP_SYS(openat), SCMP_SYS(write), SCMP_SYS(copy_file_range),
                                       SCMP_SYS(fsync), SCMP_SYS(symlink)};

    /// The descriptor at which the calls of this thread are heard, or -1.
    static int install() {
        // The library hands out one listener for the whole program, unless told to forget it.
        seccomp_reset(nullptr, SCMP_ACT_ALLOW);
        const std::unique_ptr<void, decltype(&seccomp_release)> filter(seccomp_init(SCMP_ACT_ALLOW),
                                                                       &seccomp_release);
        for (const int call : names) seccomp_rule_add_array(filter.get(), SCMP_ACT_NOTIFY, call, 0, nullptr);
        for (const int call : others) seccomp_rule_add_array(filter.get(), SCMP_ACT_NOTIFY, call, 0, nullptr);
        if (seccomp_load(filter.get()) != 0) return -1;
        return ::dup(seccomp_notify_fd(filter.get()));
    }

    void answer(int listener) {
        seccomp_notif* call = nullptr;
        seccomp_notif_resp* response = nullptr;
        if (seccomp_notify_alloc(&call, &response) != 0) return;
        if (seccomp_notify_receive(listener, call) == 0) {
            response->id = call->id;
            response->error = -errorFor(call->data);
            response->flags = response->error == 0 ? SECCOMP_USER_NOTIF_FLAG_CONTINUE : 0;
            seccomp_notify_respond(listener, response);
        }
        seccomp_notify_free(call, response);
    }

    int errorFor(const seccomp_data& call) {
        if (before) before(call.nr);
        const bool isExclusive = call.nr == SCMP_SYS(renameat2) && call.args[4] != 0;
        if (refusesExclusiveRename && isExclusive) return EINVAL;
        if (++calls != faulty) return 0;
        if (actsAllTheSame && std::ranges::find(names, call.nr) != names.end()) {
            const auto& [a, b, c, d, e, f] = call.args;
            ::syscall(call.nr, a, b, c, d, e, f);
        }
        return EIO;
    }
};

}  // namespace tamble
