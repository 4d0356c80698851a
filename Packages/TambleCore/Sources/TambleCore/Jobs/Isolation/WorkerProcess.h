#pragma once

#include <TambleCore/Jobs/Isolation/MessageChannel.h>
#include <TambleCore/Jobs/Isolation/WorkerPool.h>

#include <chrono>
#include <filesystem>
#include <string>

#include <sys/types.h>

namespace tamble {

/// One running worker, with its connection and what it says on standard error. Its end ends the process.
///
/// The worker leaves by itself when its connection closes, and so with this program, however that ends. The
/// kernel's parent-death signal is no use here: it follows the thread that started the worker, not the
/// program.
class WorkerProcess {
  public:
    /// Starts the program, which may take `memoryLimit` bytes (0: no limit). Throws std::system_error when it
    /// cannot be started.
    WorkerProcess(const std::filesystem::path& program, const WorkerPermit& permit,
                  std::uint64_t memoryLimit);
    ~WorkerProcess();
    WorkerProcess(const WorkerProcess&) = delete;
    WorkerProcess& operator=(const WorkerProcess&) = delete;

    const WorkerPermit& permit() const noexcept { return permit_; }
    pid_t identifier() const noexcept { return process_; }

    /// False when the worker is gone or hangs.
    bool send(const Json& request) { return channel_.send(request); }
    /// The next reply that has arrived. Throws DecodeError for nonsense.
    std::optional<Json> nextReply() { return channel_.next(); }

    /// Waits until something arrives, wake() is called or the time is over; whether the connection still
    /// stands.
    bool wait(std::chrono::milliseconds longest);
    /// Ends a wait() of another thread, or the next one; async-signal-safe.
    void wake() const noexcept;
    /// Whether the connection stands and nothing lies unread in it.
    bool isQuiet() const;

    /// The processor time that the worker has used, all threads together.
    std::chrono::nanoseconds processorTime() const;

    /// Kills the process if it still runs, and says how it ended, for the log.
    std::string end();

  private:
    void start(const std::filesystem::path& program, std::uint64_t memoryLimit, int connection, int words);
    void takeWords();
    void logWords(bool all);

    WorkerPermit permit_;
    MessageChannel channel_;
    FileDescriptor words_;
    FileDescriptor wakeUp_;
    pid_t process_ = -1;
    std::string heard_;
    int linesLogged_ = 0;
};

}  // namespace tamble
