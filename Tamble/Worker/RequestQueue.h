#pragma once

#include <TambleCore/Jobs/Isolation/MessageChannel.h>
#include <TambleCore/Jobs/Isolation/WorkerMessage.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <stop_token>

namespace tamble {

/// A worker's connection to the program that started it: requests come in on a thread of its own, so that a
/// stop request and the end of the program are noticed while a tool is at work.
class RequestQueue {
  public:
    struct Entry {
        WorkerRequest request;
        std::stop_token stop;
    };

    explicit RequestQueue(FileDescriptor connection);

    /// Takes in requests; ends the process when the connection closes or brings nonsense.
    [[noreturn]] void readUntilEnd();
    /// Waits for the next request.
    Entry next();
    /// Ends the process when nobody listens any more. To be called from any thread.
    void reply(const WorkerReply& reply);

  private:
    void take(WorkerRequest request);

    MessageChannel channel_;
    std::mutex sending_;
    std::mutex waiting_;
    std::condition_variable arrival_;
    std::deque<Entry> entries_;
    /// Of the newest request.
    std::stop_source stop_;
};

}  // namespace tamble
