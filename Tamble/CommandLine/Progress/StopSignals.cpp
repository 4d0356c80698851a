#include <Tamble/CommandLine/Progress/StopSignals.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace tamble {
namespace {

constexpr std::array<int, 3> stopSignals{SIGINT, SIGTERM, SIGHUP};
constexpr char signalled = 's';
constexpr char over = 'o';

/// The end of the pipe that the handler writes to: a handler can be given nothing.
std::atomic<int> handlerEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler reads it");

void send(char message) {
    const int savedError = errno;
    // A full pipe holds more requests than anybody needs.
    [[maybe_unused]] const auto written = write(handlerEnd, &message, 1);
    errno = savedError;
}

extern "C" void tambleStopSignalHandler(int) {
    send(signalled);
}

void setHandler(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

bool isIgnored(int signal) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

}  // namespace

StopSignals::StopSignals(std::function<void()> onSignal) : onSignal_(std::move(onSignal)) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::system_error(errno, std::system_category(), "pipe");
    readEnd_ = ends[0];
    fcntl(ends[1], F_SETFL, O_NONBLOCK);
    handlerEnd = ends[1];
    listener_ = std::thread([this] { listen(); });
    // A program started by nohup or in the background of a script keeps ignoring what it was told to ignore.
    for (const int signal : stopSignals) {
        if (!isIgnored(signal)) setHandler(signal, tambleStopSignalHandler);
    }
}

StopSignals::~StopSignals() {
    for (const int signal : stopSignals) {
        if (!isIgnored(signal)) setHandler(signal, SIG_DFL);
    }
    send(over);
    listener_.join();
    close(handlerEnd.exchange(-1));
    close(readEnd_);
}

void StopSignals::listen() const {
    for (char message = 0; message != over;) {
        const auto count = read(readEnd_, &message, 1);
        if (count == 1 && message == signalled) onSignal_();
        if (count == 0 || (count < 0 && errno != EINTR)) return;
    }
}

}  // namespace tamble
