#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include <fmt/format.h>

namespace tamble {

/// One area of the program's log, such as "engine" or "activity". Lines go to the system journal; with
/// TAMBLE_LOG=1 in the environment they go to standard error instead. Nothing is opened before the first
/// line.
class Log {
  public:
    explicit constexpr Log(std::string_view category) : category_(category) {}

    template <typename... Arguments>
    void notice(fmt::format_string<Arguments...> format, Arguments&&... arguments) const {
        write(Level::notice, fmt::format(format, std::forward<Arguments>(arguments)...));
    }
    template <typename... Arguments>
    void error(fmt::format_string<Arguments...> format, Arguments&&... arguments) const {
        write(Level::error, fmt::format(format, std::forward<Arguments>(arguments)...));
    }

  private:
    enum class Level { notice, error };
    void write(Level level, const std::string& line) const;

    std::string_view category_;
};

/// A path or text that belongs to the user, as it may stand in the log: "<private>", unless
/// TAMBLE_LOG_PRIVATE=1 asks for the real thing.
std::string privately(const std::filesystem::path& path);

/// Receives every line in place of the journal while it lives: for tests of what is logged.
class LogCapture {
  public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// All lines so far, each "category: text" and a line break.
    std::string text() const;

  private:
    struct Lines;
    std::shared_ptr<Lines> lines_;
    friend class Log;
};

}  // namespace tamble
