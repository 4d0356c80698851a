#include <Tamble/Model/SharedFile.h>

#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/FileLock.h>
#include <TambleCore/Platform/MoveItem.h>
#include <TambleCore/Support/UUID.h>

namespace tamble {
namespace {

std::filesystem::path with(std::filesystem::path path, std::string_view ending) {
    path += ending;
    return path;
}

}  // namespace

std::optional<std::string> SharedFile::readText() const {
    if (!std::filesystem::exists(path_)) return std::nullopt;
    return readWholeFile(path_);
}

std::optional<Json> SharedFile::read() const {
    const auto text = readText();
    return text ? std::optional(parseJson(*text)) : std::nullopt;
}

void SharedFile::update(const std::function<Json()>& change) const {
    std::string text;
    updateText([&] {
        text = writeJson(change());
        return std::vector<std::string_view>{text};
    });
}

void SharedFile::updateText(const std::function<std::vector<std::string_view>()>& change) const {
    std::filesystem::create_directories(path_.parent_path());
    const FileLock lock = FileLock::waitFor(lockFile("change"));
    writeFileAtomically(path_, change());
}

void SharedFile::moveAside() const {
    const auto aside = with(path_, ".unreadable");
    try {
        moveItem(path_, aside);
    } catch (const std::filesystem::filesystem_error& error) {
        // An earlier one is kept as well.
        if (error.code() != std::errc::file_exists) throw;
        moveItem(path_, with(aside, "-" + newUUID()));
    }
}

std::filesystem::path SharedFile::lockFile(std::string_view purpose) const {
    return with(with(with(path_, "."), purpose), ".lock");
}

}  // namespace tamble
