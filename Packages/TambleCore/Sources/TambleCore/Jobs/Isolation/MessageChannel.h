#pragma once

#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Support/Json/Json.h>

#include <cstddef>
#include <optional>

namespace tamble {

/// JSON documents over a connected stream socket, each behind its length in bytes as an unsigned 32-bit
/// number in the machine's byte order. Not for several threads at once, except that one may send while
/// another receives.
class MessageChannel {
  public:
    /// Incoming messages longer than `longest` bytes are refused.
    MessageChannel(FileDescriptor socket, std::size_t longest);

    int descriptor() const noexcept { return socket_.number(); }

    /// False when the other side is gone or takes nothing within the socket's time limit.
    bool send(const Json& message);

    /// Takes in what has arrived, after waiting for something if nothing has; false when the other side is
    /// gone.
    bool receive();

    /// The next message that has arrived completely. Throws DecodeError for one that is too long or not JSON;
    /// the channel is of no more use then.
    std::optional<Json> next();

  private:
    FileDescriptor socket_;
    std::size_t longest_;
    std::string arrived_;
    /// How much of `arrived_` has been handed out already.
    std::size_t taken_ = 0;
};

}  // namespace tamble
