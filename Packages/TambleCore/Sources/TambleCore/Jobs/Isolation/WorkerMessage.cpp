#include <TambleCore/Jobs/Isolation/WorkerMessage.h>
#include <TambleCore/Support/FileURL.h>

#include <algorithm>
#include <iterator>

namespace tamble {

FileMessage messageOf(const InputFile& file) {
    FileMessage message{.url = file.url,
                        .relativeFolder = percentEncoded(file.relativeFolder),
                        .byteSize = file.byteSize,
                        .originalURL = file.originalURL,
                        .isLoose = file.isLoose};
    // An empty path would arrive as the current folder.
    if (!file.root.empty()) message.root = file.root;
    if (file.contentType) message.contentType = std::string(file.contentType->identifier());
    return message;
}

std::vector<FileMessage> messagesOf(std::span<const InputFile> files) {
    std::vector<FileMessage> messages;
    messages.reserve(files.size());
    std::ranges::transform(files, std::back_inserter(messages), messageOf);
    return messages;
}

InputFile inputFile(const FileMessage& message) {
    auto folder = percentDecoded(message.relativeFolder);
    if (!folder) throw DecodeError("A percent-encoded folder was expected.");
    InputFile file{.url = message.url,
                   .root = message.root.value_or(std::filesystem::path()),
                   .relativeFolder = std::move(*folder),
                   .byteSize = message.byteSize,
                   .originalURL = message.originalURL,
                   .isLoose = message.isLoose};
    if (message.contentType) file.contentType = ContentType::withIdentifier(*message.contentType);
    return file;
}

std::vector<InputFile> inputFiles(std::span<const FileMessage> messages) {
    std::vector<InputFile> files;
    files.reserve(messages.size());
    std::ranges::transform(messages, std::back_inserter(files), inputFile);
    return files;
}

}  // namespace tamble
