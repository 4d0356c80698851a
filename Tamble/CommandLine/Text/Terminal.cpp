#include <Tamble/CommandLine/Text/Terminal.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>

#include <fmt/format.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tamble {
namespace {

constexpr std::size_t usualWidth = 80;

std::string_view environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

}  // namespace

Terminal::Terminal(int descriptor) : descriptor_(descriptor) {
    const std::string_view kind = environment("TERM");
    isLive_ = isatty(descriptor) == 1 && !kind.empty() && kind != "dumb";
    // https://no-color.org: present and not empty.
    hasColours_ = isLive_ && environment("NO_COLOR").empty();
}

Terminal Terminal::output() {
    return Terminal(STDOUT_FILENO);
}

Terminal Terminal::errors() {
    return Terminal(STDERR_FILENO);
}

std::size_t Terminal::width() const {
    winsize size{};
    if (ioctl(descriptor_, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
    const std::string_view columns = environment("COLUMNS");
    std::size_t width = 0;
    const auto [end, error] = std::from_chars(columns.data(), columns.data() + columns.size(), width);
    return error == std::errc() && width > 0 ? width : usualWidth;
}

std::string Terminal::styled(std::string_view code, std::string_view text) const {
    return hasColours_ ? fmt::format("\x1b[{}m{}\x1b[0m", code, text) : std::string(text);
}

void printOutput(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void printError(std::string_view text) {
    // What is said on standard output first must be read first.
    std::fflush(stdout);
    std::fwrite(text.data(), 1, text.size(), stderr);
}

}  // namespace tamble
