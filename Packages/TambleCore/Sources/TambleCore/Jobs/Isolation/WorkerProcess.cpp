#include <TambleCore/Jobs/Isolation/WorkerMessage.h>
#include <TambleCore/Jobs/Isolation/WorkerProcess.h>
#include <TambleCore/Platform/ProcessEnd.h>
#include <TambleCore/Support/Log.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble {
namespace {

constexpr Log workerLog("worker");

/// How long a worker may leave a request untaken: its reader does nothing else.
constexpr timeval sendTimeLimit{.tv_sec = 10, .tv_usec = 0};
constexpr std::size_t longestLine = 2000;
/// A worker that complains without end says nothing new.
constexpr int mostLines = 200;

void require(bool succeeded, const char* what) {
    if (!succeeded) throw std::system_error(errno, std::generic_category(), what);
}

struct Ends {
    FileDescriptor ours;
    FileDescriptor theirs;
};

Ends connectedSockets() {
    std::array<int, 2> ends{};
    require(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) == 0, "socketpair");
    ::setsockopt(ends[0], SOL_SOCKET, SO_SNDTIMEO, &sendTimeLimit, sizeof sendTimeLimit);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

Ends pipeForWords() {
    std::array<int, 2> ends{};
    require(::pipe2(ends.data(), O_CLOEXEC) == 0, "pipe");
    ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

/// The environment of this program, with what differs in a worker.
std::vector<std::string> workerEnvironment(const WorkerPermit& permit) {
    std::vector<std::string> environment;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view text = *entry;
        const bool differs = text.starts_with("TAMBLE_LOG=") || text.starts_with("TMPDIR=") ||
                             text.starts_with("GLIBC_TUNABLES=") ||
                             permit.environment.contains(std::string(text.substr(0, text.find('='))));
        if (!differs) environment.emplace_back(text);
    }
    environment.emplace_back("TAMBLE_LOG=1");
    // The system hands out the memory of whole pictures faster in huge pages.
    environment.emplace_back("GLIBC_TUNABLES=glibc.malloc.hugetlb=1");
    if (!permit.writable.empty()) environment.push_back("TMPDIR=" + permit.writable.native());
    for (const auto& [name, value] : permit.environment)
        environment.push_back(fmt::format("{}={}", name, value));
    return environment;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (auto& text : texts) result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

/// Frees what posix_spawn is told with.
struct SpawnPlan {
    posix_spawn_file_actions_t files{};
    posix_spawnattr_t attributes{};

    SpawnPlan() {
        ::posix_spawn_file_actions_init(&files);
        ::posix_spawnattr_init(&attributes);
    }
    ~SpawnPlan() {
        ::posix_spawn_file_actions_destroy(&files);
        ::posix_spawnattr_destroy(&attributes);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;
};

}  // namespace

WorkerProcess::WorkerProcess(const std::filesystem::path& program, const WorkerPermit& permit,
                             std::uint64_t memoryLimit)
    : permit_(permit), channel_({}, longestReply), wakeUp_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    require(static_cast<bool>(wakeUp_), "eventfd");
    auto connection = connectedSockets();
    auto words = pipeForWords();
    channel_ = MessageChannel(std::move(connection.ours), longestReply);
    words_ = std::move(words.ours);
    start(program, memoryLimit, connection.theirs.number(), words.theirs.number());
}

WorkerProcess::~WorkerProcess() {
    end();
}

void WorkerProcess::start(const std::filesystem::path& program, std::uint64_t memoryLimit, int connection,
                          int words) {
    SpawnPlan plan;
    // The numbers below the connection's may be taken by these very descriptors, so they are moved out of the
    // way first.
    const FileDescriptor far(::fcntl(connection, F_DUPFD_CLOEXEC, workerConnection + 1));
    const FileDescriptor farWords(::fcntl(words, F_DUPFD_CLOEXEC, workerConnection + 1));
    require(far && farWords, "dup");
    ::posix_spawn_file_actions_addopen(&plan.files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&plan.files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_adddup2(&plan.files, farWords.number(), STDERR_FILENO);
    ::posix_spawn_file_actions_adddup2(&plan.files, far.number(), workerConnection);
    ::posix_spawn_file_actions_addclosefrom_np(&plan.files, workerConnection + 1);
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    ::posix_spawnattr_setsigmask(&plan.attributes, &none);
    ::posix_spawnattr_setsigdefault(&plan.attributes, &all);
    // A session of its own: Ctrl-C is for the program, which then tells its workers, and no terminal is in
    // reach.
    ::posix_spawnattr_setflags(&plan.attributes,
                               POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSID);
    std::vector<std::string> arguments{program.native(), permit_.writable.native(),
                                       std::to_string(memoryLimit)};
    if (permit_.needs.startsPrograms) arguments.emplace_back(workerMayStartPrograms);
    std::vector<std::string> environment = workerEnvironment(permit_);
    const int error = ::posix_spawn(&process_, program.c_str(), &plan.files, &plan.attributes,
                                    pointers(arguments).data(), pointers(environment).data());
    if (error != 0) {
        process_ = -1;
        throw std::system_error(error, std::generic_category(), "posix_spawn");
    }
}

bool WorkerProcess::wait(std::chrono::milliseconds longest) {
    std::array<pollfd, 3> places{
        {{channel_.descriptor(), POLLIN, 0}, {words_.number(), POLLIN, 0}, {wakeUp_.number(), POLLIN, 0}}};
    if (::poll(places.data(), places.size(), static_cast<int>(longest.count())) <= 0) return true;
    if (places[2].revents != 0) {
        eventfd_t count = 0;
        ::eventfd_read(wakeUp_.number(), &count);
    }
    if (places[1].revents != 0) takeWords();
    return places[0].revents == 0 || channel_.receive();
}

void WorkerProcess::wake() const noexcept {
    ::eventfd_write(wakeUp_.number(), 1);
}

bool WorkerProcess::isQuiet() const {
    pollfd place{channel_.descriptor(), POLLIN, 0};
    return ::poll(&place, 1, 0) == 0;
}

std::chrono::nanoseconds WorkerProcess::processorTime() const {
    return tamble::processorTime(process_);
}

std::string WorkerProcess::end() {
    if (process_ < 0) return "had ended";
    ::kill(process_, SIGKILL);
    int status = 0;
    while (::waitpid(process_, &status, 0) < 0 && errno == EINTR) {
    }
    process_ = -1;
    takeWords();
    logWords(true);
    return processEnd(status);
}

void WorkerProcess::takeWords() {
    std::array<char, 4096> part;
    for (;;) {
        const ssize_t count = ::read(words_.number(), part.data(), part.size());
        if (count == 0) words_ = {};
        if (count <= 0) break;
        heard_.append(part.data(), static_cast<std::size_t>(count));
        logWords(false);
    }
}

void WorkerProcess::logWords(bool all) {
    std::size_t end = 0;
    while ((end = heard_.find('\n')) != std::string::npos || heard_.size() > longestLine ||
           (all && !heard_.empty())) {
        const std::string line = heard_.substr(0, std::min(end, longestLine));
        heard_.erase(0, std::max<std::size_t>(line.size(), 1));
        if (heard_.starts_with('\n')) heard_.erase(0, 1);
        // What libraries say names the user's files.
        if (!line.empty() && linesLogged_++ < mostLines)
            workerLog.notice("A worker said: {}", privately(line));
    }
}

}  // namespace tamble
