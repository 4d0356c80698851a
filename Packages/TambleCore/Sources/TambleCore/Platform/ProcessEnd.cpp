#include <TambleCore/Platform/ProcessEnd.h>

#include <csignal>
#include <cstring>
#include <ctime>

#include <fmt/format.h>
#include <sys/wait.h>

namespace tamble {

std::string processEnd(int status) {
    if (WIFSIGNALED(status)) {
        const char* name = ::sigabbrev_np(WTERMSIG(status));
        return fmt::format("ended by SIG{}", name == nullptr ? std::to_string(WTERMSIG(status)) : name);
    }
    return fmt::format("left with status {}", WEXITSTATUS(status));
}

std::chrono::nanoseconds processorTime(pid_t process) {
    clockid_t clock{};
    timespec used{};
    if (::clock_getcpuclockid(process, &clock) != 0 || ::clock_gettime(clock, &used) != 0) return {};
    return std::chrono::seconds(used.tv_sec) + std::chrono::nanoseconds(used.tv_nsec);
}

}  // namespace tamble
