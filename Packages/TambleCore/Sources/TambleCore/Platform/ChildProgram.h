#pragma once

#include <TambleCore/Platform/FileDescriptor.h>

#include <chrono>
#include <cstdint>
#include <exception>
#include <span>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

#include <sys/types.h>

namespace tamble {

/// A program to start.
struct ChildCommand {
    /// Looked for in PATH.
    std::string program;
    std::vector<std::string> arguments;
    /// Open files that it finds as descriptors 3, 4, …; it gets no others but its output.
    std::vector<int> files = {};
    /// How many bytes of memory it may take (RLIMIT_DATA); 0 for as many as this process.
    std::uint64_t memory = 0;
    /// How much processor time it may use in all (RLIMIT_CPU); 0 for as much as it takes.
    std::chrono::seconds processor{0};
    /// How much processor time it may use without writing anything, and how long it may do neither.
    std::chrono::milliseconds patience = std::chrono::seconds(20);
};

/// A child program could not be started, failed, crashed or took more than it may.
class ChildFailed : public std::exception {
  public:
    enum class Reason {
        missing,    ///< it is not installed
        stuck,      ///< it wrote nothing for too long
        misbehaved  ///< it crashed, or said itself that it failed
    };
    ChildFailed(Reason reason, std::string detail);
    ~ChildFailed() override;
    ChildFailed(const ChildFailed&) = default;
    ChildFailed& operator=(const ChildFailed&) = default;

    Reason reason() const noexcept { return reason_; }
    const char* what() const noexcept override { return detail_.c_str(); }

  private:
    Reason reason_;
    std::string detail_;
};

/// A program at work beside this one, started without a shell, whose output is read as it comes. It dies with
/// this object, and with this process however that ends; where signals to other processes are refused, too:
/// the kernel ends it with the thread that started it.
class ChildProgram {
  public:
    /// Throws ChildFailed when it cannot be started.
    ChildProgram(const ChildCommand& command, std::stop_token stop);
    ~ChildProgram();
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;

    /// Waits until all of `target` is filled or the output ends; answers how many bytes there are. Throws
    /// Cancelled within 0.1 s of a stop request; ChildFailed.
    std::size_t read(std::span<std::uint8_t> target);
    /// Waits for its end; output that nobody read is dropped. Throws ChildFailed unless it succeeded;
    /// Cancelled.
    void finish();
    /// The beginning of what it said on standard error, which may name the user's files.
    const std::string& words() const noexcept { return words_; }

  private:
    using Clock = std::chrono::steady_clock;
    struct Plan;

    void waitForOutput();
    void takeWords();
    void markAlive();
    void watch();
    [[noreturn]] void fail(ChildFailed::Reason reason, std::string_view why) const;

    std::string program_;
    std::chrono::milliseconds patience_;
    std::stop_token stop_;
    FileDescriptor output_;
    FileDescriptor errors_;
    std::string words_;
    pid_t process_ = -1;
    Clock::time_point lastSign_{};
    std::chrono::nanoseconds processorAtLastSign_{};
    /// Started the program and ends it by its own end.
    std::jthread keeper_;
};

}  // namespace tamble
