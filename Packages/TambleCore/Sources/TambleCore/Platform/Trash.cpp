#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/MoveItem.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Platform/Trash.h>
#include <TambleCore/Platform/TrashFolder.h>
#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/NameFitting.h>
#include <TambleCore/Support/PathKey.h>
#include <TambleCore/Support/UUID.h>

#include <array>
#include <cerrno>
#include <ctime>
#include <string>

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

namespace tamble::trash {
namespace {

class BinErrors final : public std::error_category {
  public:
    const char* name() const noexcept override { return "bin"; }
    std::string message(int) const override { return "This volume has no Bin."; }
};

std::string localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &local);
    return {text.data(), length};
}

/// The name to try in the Bin. People see it there, so it stays near the original's; after a few that are
/// taken a random one ends the search, whatever number of items of one name the Bin holds.
std::string candidate(const std::string& name, int attempt) {
    constexpr int readableAttempts = 20;
    const std::size_t limit = maximumNameLength - noteExtension.size();
    const std::size_t dot = extensionStart(name);
    const std::string extension = name.substr(dot);
    const std::string stem = name.substr(0, dot);
    if (attempt == 1) return fittedName(stem, extension, limit);
    const std::string mark = attempt <= readableAttempts ? std::to_string(attempt) : newUUID();
    return fittedName(stem, " " + mark + extension, limit);
}

/// Takes the name in the Bin; false when it is taken already.
bool writeNote(const std::filesystem::path& note, const std::string& text) {
    const FileDescriptor file(
        ::open(note.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!file) {
        if (errno == EEXIST) return false;
        throwLastError("cannot write", note);
    }
    const ssize_t written = ::write(file.number(), text.data(), text.size());
    if (written == static_cast<ssize_t>(text.size())) return true;
    if (written >= 0) errno = ENOSPC;
    const std::error_code error = lastSystemError();
    ::unlink(note.c_str());
    throw std::filesystem::filesystem_error("cannot write", note, error);
}

}  // namespace

std::error_code noBin() noexcept {
    static const BinErrors category;
    return {1, category};
}

std::filesystem::path put(const std::filesystem::path& item) {
    const std::filesystem::path given = standardized(item);
    if (!isThere(given)) {
        errno = ENOENT;
        throwLastError("cannot move to the Bin", given);
    }
    // Links above the item are resolved: the note must be right for every program that reads it.
    const std::filesystem::path folder = std::filesystem::canonical(given.parent_path());
    const std::filesystem::path source = folder / given.filename();
    const TrashFolder bin = TrashFolder::forItemsOf(folder);
    const std::filesystem::path place = bin.top.empty() ? source : source.lexically_relative(bin.top);
    const std::string text = fmt::format("{}\n{}{}\nDeletionDate={}\n", noteHeading, notePathKey,
                                         percentEncoded(place.native()), localTime());
    for (int attempt = 1;; ++attempt) {
        const std::string name = candidate(source.filename().native(), attempt);
        const std::filesystem::path note = bin.info() / (name + std::string(noteExtension));
        if (!writeNote(note, text)) continue;
        std::filesystem::path landed = bin.files() / name;
        try {
            moveItem(source, landed);
            return landed;
        } catch (const std::filesystem::filesystem_error& error) {
            ::unlink(note.c_str());
            // An item without a note has the name.
            if (error.code() != std::errc::file_exists) throw;
        }
    }
}

std::optional<std::filesystem::path> noteOf(const std::filesystem::path& item) {
    const std::filesystem::path path = standardized(item);
    // Most items stand in no Bin, which is seen without taking the path apart.
    const std::string& text = path.native();
    if (!std::string_view(text).substr(0, text.rfind('/')).ends_with("/files")) return std::nullopt;
    const std::filesystem::path files = path.parent_path();
    std::filesystem::path note = files.parent_path() / "info" / path.filename();
    note += noteExtension;
    if (firstBytes(AT_FDCWD, note.c_str(), noteHeading.size()) != noteHeading) return std::nullopt;
    return note;
}

}  // namespace tamble::trash
