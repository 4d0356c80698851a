#include <Tamble/CommandLine/Text/HiddenInput.h>

#include <TambleCore/Platform/FileDescriptor.h>

#include <cerrno>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace tamble {
namespace {

/// The terminal without echo, while this lives.
class WithoutEcho {
  public:
    explicit WithoutEcho(int terminal) : terminal_(terminal) {
        if (::tcgetattr(terminal_, &before_) != 0) return;
        termios quiet = before_;
        quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        quiet.c_lflag |= ECHONL;
        isChanged_ = ::tcsetattr(terminal_, TCSAFLUSH, &quiet) == 0;
    }
    ~WithoutEcho() {
        if (isChanged_) ::tcsetattr(terminal_, TCSAFLUSH, &before_);
    }
    WithoutEcho(const WithoutEcho&) = delete;
    WithoutEcho& operator=(const WithoutEcho&) = delete;

    bool isInForce() const { return isChanged_; }

  private:
    int terminal_;
    termios before_{};
    bool isChanged_ = false;
};

bool say(int terminal, const std::string& text) {
    return ::write(terminal, text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

std::optional<std::string> lineFrom(int terminal) {
    std::string line;
    for (;;) {
        char letter = 0;
        const ssize_t count = ::read(terminal, &letter, 1);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return std::nullopt;
        if (letter == '\n') return line;
        line += letter;
    }
}

}  // namespace

std::optional<std::string> askHidden(const std::string& question) {
    const FileDescriptor terminal(::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY));
    if (!terminal) return std::nullopt;
    const WithoutEcho quiet(terminal.number());
    if (!quiet.isInForce() || !say(terminal.number(), question)) return std::nullopt;
    return lineFrom(terminal.number());
}

}  // namespace tamble
