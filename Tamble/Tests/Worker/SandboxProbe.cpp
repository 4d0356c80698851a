#include "SandboxProbe.h"

#include <TambleCore/Platform/FileDescriptor.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <thread>

#include <arpa/inet.h>
#include <fcntl.h>
#include <linux/io_uring.h>
#include <netinet/in.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble {
namespace {

bool canFork() {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(0);
    if (child > 0) ::waitpid(child, nullptr, 0);
    return child > 0;
}

bool canStartThreads() {
    int answer = 0;
    std::thread([&answer] { answer = 42; }).join();
    return answer == 42;
}

}  // namespace

std::string probeSandbox(const std::filesystem::path& outside) {
    std::string found;
    const auto forbidden = [&found](const char* name, bool succeeded) {
        if (succeeded) found += std::string(name) + "\n";
    };
    const auto permitted = [&found](const char* name, bool succeeded) {
        if (!succeeded) found += std::string("no ") + name + "\n";
    };
    const auto existing = outside / "existing";

    forbidden("internet socket", bool(FileDescriptor(::socket(AF_INET, SOCK_STREAM, 0))));
    forbidden("datagram socket", bool(FileDescriptor(::socket(AF_INET6, SOCK_DGRAM, 0))));
    forbidden("local socket", bool(FileDescriptor(::socket(AF_UNIX, SOCK_STREAM, 0))));
    forbidden("fork", canFork());
    forbidden("programs", std::system("true") == 0);
    forbidden("ptrace", ::ptrace(PTRACE_ATTACH, ::getppid(), nullptr, nullptr) == 0);
    forbidden("signal to the parent", ::kill(::getppid(), 0) == 0);
    io_uring_params parameters{};
    forbidden("io_uring", ::syscall(SYS_io_uring_setup, 1, &parameters) >= 0);

    forbidden("touch outside", ::utimensat(AT_FDCWD, existing.c_str(), nullptr, 0) == 0);
    forbidden("chmod outside", ::chmod(existing.c_str(), 0600) == 0);
    forbidden("create outside", std::ofstream(outside / "created").is_open());
    forbidden("overwrite outside", std::ofstream(existing).is_open());
    forbidden("truncate outside", ::truncate(existing.c_str(), 0) == 0);
    forbidden("rename outside", ::rename(existing.c_str(), (outside / "renamed").c_str()) == 0);
    forbidden("remove outside", ::unlink(existing.c_str()) == 0);
    forbidden("folder outside", ::mkdir((outside / "folder").c_str(), 0700) == 0);

    rlimit core{};
    ::getrlimit(RLIMIT_CORE, &core);
    forbidden("core files", core.rlim_cur != 0);
    permitted("reading outside", std::ifstream(existing).is_open());
    permitted("threads", canStartThreads());
    permitted("/dev/null", std::ofstream("/dev/null").is_open());
    return found;
}

}  // namespace tamble
