#include <Tamble/Worker/RequestQueue.h>
#include <Tamble/Worker/RequestWork.h>
#include <Tamble/Worker/Worker.h>

#include <TambleCore/Jobs/Isolation/WorkerMessage.h>
#include <TambleCore/Platform/Sandbox/Sandbox.h>

#include <charconv>
#include <csignal>
#include <iostream>
#include <thread>

#include <malloc.h>
#include <sys/stat.h>

namespace tamble {
namespace {

// Sanitizers take terabytes of address space for their own notes.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool canLimitMemory = false;
#else
constexpr bool canLimitMemory = true;
#endif

bool hasConnection() {
    struct stat properties {};
    return ::fstat(workerConnection, &properties) == 0 && S_ISSOCK(properties.st_mode);
}

std::optional<SandboxPolicy> policyFrom(std::span<char* const> arguments) {
    const bool mayStartPrograms = arguments.size() == 4 && arguments[3] == workerMayStartPrograms;
    if ((arguments.size() != 3 && !mayStartPrograms) || !hasConnection()) return std::nullopt;
    const std::filesystem::path writable(arguments[1]);
    const std::string_view memory(arguments[2]);
    SandboxPolicy policy{.mayStartPrograms = mayStartPrograms};
    if (!writable.empty()) policy.writable.push_back(writable);
    const auto [end, error] =
        std::from_chars(memory.data(), memory.data() + memory.size(), policy.memoryLimit);
    if (error != std::errc() || end != memory.data() + memory.size()) return std::nullopt;
    if (!canLimitMemory) policy.memoryLimit = 0;
    return policy;
}

/// Large pictures go back to the system at once: the allocator would keep the room of the largest for the
/// next.
void returnLargeBlocks() {
    constexpr int threshold = 16 << 20;
    ::mallopt(M_MMAP_THRESHOLD, threshold);
    ::mallopt(M_TRIM_THRESHOLD, threshold);
}

}  // namespace

int runWorker(std::span<char* const> arguments, const ToolLookup& tools) {
    const auto policy = policyFrom(arguments);
    if (!policy) {
        std::cerr << "This program is started by Tamble, to read files safely. Run “tamble” instead.\n";
        return 2;
    }
    std::signal(SIGPIPE, SIG_IGN);
    returnLargeBlocks();
    const auto report = enterSandbox(*policy);
    RequestQueue queue{FileDescriptor(workerConnection)};
    queue.reply(reply::Ready{.confinesFiles = report.confinesFiles, .confinesCalls = report.confinesCalls});
    const std::jthread reader([&queue] { queue.readUntilEnd(); });
    for (;;) {
        const auto [request, stop] = queue.next();
        const WorkContext context{.progress = throttledProgress(queue), .stop = stop};
        queue.reply(replyTo(request, tools, context));
    }
}

}  // namespace tamble
