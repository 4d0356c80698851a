#include <TambleCore/Platform/ChildProgram.h>
#include <TambleCore/Platform/ProcessEnd.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/WorkContext.h>

#include <array>
#include <cerrno>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <future>
#include <limits>
#include <mutex>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble {
namespace {

/// How often a silent child and the stop token are looked at.
constexpr std::chrono::milliseconds lookEvery{40};
constexpr std::size_t mostWords = 4096;
/// So that the child can work on while its last picture is encoded.
constexpr int pipeSize = 1 << 20;
constexpr int firstHandedDown = 3;
/// A child that waits for nothing uses more of the processor than this share, however busy the machine is.
constexpr int leastShare = 50;

struct Pipe {
    FileDescriptor out;
    FileDescriptor in;
};

Pipe newPipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        throw ChildFailed(ChildFailed::Reason::misbehaved, "pipe: " + lastSystemError().message());
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

/// What programs that read documents may know of the user's session: where programs and fonts are.
std::vector<std::string> minimalEnvironment() {
    std::vector<std::string> environment{"LANG=C.UTF-8"};
    for (const char* name : {"PATH", "HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
        if (const char* value = std::getenv(name)) environment.push_back(std::string(name) + "=" + value);
    }
    return environment;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (auto& text : texts) result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

}  // namespace

ChildFailed::ChildFailed(Reason reason, std::string detail) : reason_(reason), detail_(std::move(detail)) {}
ChildFailed::~ChildFailed() = default;

/// All that the child needs between fork and exec, where nothing may be allocated.
struct ChildProgram::Plan {
    std::vector<std::string> words;
    std::vector<std::string> environment = minimalEnvironment();
    std::vector<char*> arguments;
    std::vector<char*> variables;
    /// Copies with high numbers, so that none is in the way of another.
    std::vector<FileDescriptor> files;
    int output;
    int errors;
    int trouble;
    rlim_t memory;
    rlim_t processorSeconds;
    pid_t parent = ::getpid();

    [[noreturn]] void become() const {
        if (arrange()) ::execvpe(arguments[0], arguments.data(), variables.data());
        const int error = errno;
        [[maybe_unused]] const auto written = ::write(trouble, &error, sizeof error);
        ::_exit(127);
    }

  private:
    bool arrange() const {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        // It may have died before the kernel was asked.
        if (::getppid() != parent) ::_exit(127);
        sigset_t none;
        ::sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
        // What is ignored stays so in another program.
        std::signal(SIGPIPE, SIG_DFL);
        limit(RLIMIT_CORE, 0);
        if (memory != 0) limit(RLIMIT_DATA, memory);
        if (processorSeconds != 0) limit(RLIMIT_CPU, processorSeconds);
        const int nothing = ::open("/dev/null", O_RDONLY);
        if (::dup2(nothing, STDIN_FILENO) < 0 || ::dup2(output, STDOUT_FILENO) < 0 ||
            ::dup2(errors, STDERR_FILENO) < 0)
            return false;
        int next = firstHandedDown;
        for (const auto& file : files) {
            if (::dup2(file.number(), next++) < 0) return false;
        }
        return closeAll(next, trouble - 1) && closeAll(trouble + 1, std::numeric_limits<int>::max());
    }

    static bool closeAll(int first, int last) {
        return first > last ||
               ::close_range(static_cast<unsigned>(first), static_cast<unsigned>(last), 0) == 0;
    }

    static void limit(__rlimit_resource_t resource, rlim_t most) {
        rlimit current{};
        if (::getrlimit(resource, &current) != 0) return;
        if (current.rlim_max != RLIM_INFINITY && current.rlim_max < most) most = current.rlim_max;
        const rlimit wanted{.rlim_cur = most, .rlim_max = most};
        ::setrlimit(resource, &wanted);
    }
};

ChildProgram::ChildProgram(const ChildCommand& command, std::stop_token stop)
    : program_(command.program), patience_(command.patience), stop_(std::move(stop)) {
    Pipe output = newPipe();
    Pipe errors = newPipe();
    Pipe trouble = newPipe();
    ::fcntl(output.out.number(), F_SETPIPE_SZ, pipeSize);
    const auto high = [number = firstHandedDown + static_cast<int>(command.files.size())](int file) {
        FileDescriptor copy(::fcntl(file, F_DUPFD_CLOEXEC, number));
        if (!copy) throw ChildFailed(ChildFailed::Reason::misbehaved, "dup: " + lastSystemError().message());
        return copy;
    };
    Plan plan{.words = {command.program},
              .arguments = {},
              .variables = {},
              .files = {},
              .output = 0,
              .errors = 0,
              .trouble = 0,
              .memory = command.memory,
              .processorSeconds = static_cast<rlim_t>(command.processor.count())};
    plan.words.insert(plan.words.end(), command.arguments.begin(), command.arguments.end());
    plan.arguments = pointers(plan.words);
    plan.variables = pointers(plan.environment);
    for (const int file : command.files) plan.files.push_back(high(file));
    const FileDescriptor childOutput = high(output.in.number());
    const FileDescriptor childErrors = high(errors.in.number());
    FileDescriptor childTrouble = high(trouble.in.number());
    plan.output = childOutput.number();
    plan.errors = childErrors.number();
    plan.trouble = childTrouble.number();

    std::promise<pid_t> born;
    auto child = born.get_future();
    keeper_ = std::jthread([&plan, born = std::move(born)](std::stop_token end) mutable {
        const pid_t process = ::fork();
        if (process == 0) plan.become();
        born.set_value(process);
        std::mutex mutex;
        std::condition_variable_any never;
        std::unique_lock lock(mutex);
        never.wait(lock, end, [] { return false; });
    });
    process_ = child.get();
    if (process_ < 0) throw ChildFailed(ChildFailed::Reason::misbehaved, "fork failed");
    childTrouble = {};
    trouble.in = {};
    int error = 0;
    // Ends when the program runs.
    if (::read(trouble.out.number(), &error, sizeof error) == static_cast<ssize_t>(sizeof error)) {
        ::waitpid(process_, nullptr, 0);
        throw ChildFailed(error == ENOENT ? ChildFailed::Reason::missing : ChildFailed::Reason::misbehaved,
                          program_ + ": " + std::generic_category().message(error));
    }
    output_ = std::move(output.out);
    errors_ = std::move(errors.out);
    ::fcntl(output_.number(), F_SETFL, O_NONBLOCK);
    ::fcntl(errors_.number(), F_SETFL, O_NONBLOCK);
    markAlive();
}

ChildProgram::~ChildProgram() {
    if (process_ < 0) return;
    keeper_.request_stop();
    keeper_.join();
    while (::waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
}

std::size_t ChildProgram::read(std::span<std::uint8_t> target) {
    std::size_t filled = 0;
    // While nobody reads it may have to wait.
    markAlive();
    while (filled < target.size() && output_) {
        if (stop_.stop_requested()) throw Cancelled();
        const ssize_t count = ::read(output_.number(), target.data() + filled, target.size() - filled);
        if (count > 0) {
            filled += static_cast<std::size_t>(count);
            markAlive();
        } else if (count == 0) {
            output_ = {};
        } else if (errno == EAGAIN) {
            waitForOutput();
        } else if (errno != EINTR) {
            fail(ChildFailed::Reason::misbehaved, lastSystemError().message());
        }
    }
    return filled;
}

void ChildProgram::finish() {
    std::array<std::uint8_t, 65536> dropped;
    while (read(dropped) == dropped.size()) {
    }
    int status = 0;
    for (auto pause = std::chrono::microseconds(200);; pause = std::min(2 * pause, {lookEvery})) {
        const pid_t ended = ::waitpid(process_, &status, WNOHANG);
        if (ended == process_) break;
        if (stop_.stop_requested()) throw Cancelled();
        watch();
        std::this_thread::sleep_for(pause);
    }
    process_ = -1;
    takeWords();
    if (status != 0) fail(ChildFailed::Reason::misbehaved, processEnd(status));
}

void ChildProgram::waitForOutput() {
    std::array<pollfd, 2> places{{{output_.number(), POLLIN, 0}, {errors_.number(), POLLIN, 0}}};
    ::poll(places.data(), places.size(), static_cast<int>(lookEvery.count()));
    takeWords();
    if (places[0].revents == 0) watch();
}

void ChildProgram::takeWords() {
    std::array<char, 4096> part;
    while (errors_) {
        const ssize_t count = ::read(errors_.number(), part.data(), part.size());
        if (count == 0) errors_ = {};
        if (count <= 0) return;
        words_.append(part.data(), std::min(static_cast<std::size_t>(count), mostWords - words_.size()));
    }
}

void ChildProgram::markAlive() {
    lastSign_ = Clock::now();
    processorAtLastSign_ = processorTime(process_);
}

void ChildProgram::watch() {
    const auto used = processorTime(process_) - processorAtLastSign_;
    const auto waited = Clock::now() - lastSign_;
    if (used > patience_) fail(ChildFailed::Reason::stuck, "works without end");
    if (waited > patience_ && used < waited / leastShare)
        fail(ChildFailed::Reason::stuck, "waits without end");
}

void ChildProgram::fail(ChildFailed::Reason reason, std::string_view why) const {
    throw ChildFailed(reason, fmt::format("{} {}: {}", program_, why, words_));
}

}  // namespace tamble
