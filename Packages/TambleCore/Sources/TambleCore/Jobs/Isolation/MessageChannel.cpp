#include <TambleCore/Jobs/Isolation/MessageChannel.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include <sys/socket.h>

namespace tamble {
namespace {

using Length = std::uint32_t;

}  // namespace

MessageChannel::MessageChannel(FileDescriptor socket, std::size_t longest)
    : socket_(std::move(socket)), longest_(longest) {}

bool MessageChannel::send(const Json& message) {
    const std::string text = writeJson(message);
    if (!std::in_range<Length>(text.size())) return false;
    const auto length = static_cast<Length>(text.size());
    std::string frame(sizeof length, '\0');
    std::memcpy(frame.data(), &length, sizeof length);
    frame += text;
    std::string_view rest = frame;
    while (!rest.empty()) {
        const ssize_t count = ::send(socket_.number(), rest.data(), rest.size(), MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool MessageChannel::receive() {
    arrived_.erase(0, std::exchange(taken_, 0));
    std::array<char, 65536> part;
    for (;;) {
        const ssize_t count = ::recv(socket_.number(), part.data(), part.size(), 0);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        arrived_.append(part.data(), static_cast<std::size_t>(count));
        return true;
    }
}

std::optional<Json> MessageChannel::next() {
    const std::string_view waiting = std::string_view(arrived_).substr(taken_);
    Length length = 0;
    if (waiting.size() < sizeof length) return std::nullopt;
    std::memcpy(&length, waiting.data(), sizeof length);
    if (length > longest_) throw DecodeError("The message is too long.");
    if (waiting.size() - sizeof length < length) return std::nullopt;
    taken_ += sizeof length + length;
    return parseJson(waiting.substr(sizeof length, length));
}

}  // namespace tamble
