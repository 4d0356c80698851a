#include <TambleCore/Intake/InputFileMaker.h>

namespace tamble {
namespace {

void append(InputFile& found, std::vector<InputFile>& files) {
    files.push_back(std::move(found));
}

void append(const FoundFiles& found, std::vector<InputFile>& files) {
    std::string beginning = found.folder.native();
    if (!beginning.ends_with('/')) beginning += '/';
    for (const auto& file : found.files) {
        // Joined as text, so that the path is taken apart once.
        std::string url;
        url.reserve(beginning.size() + file.name.size());
        url.append(beginning).append(file.name);
        files.push_back({.url = std::move(url),
                         .root = found.root,
                         .relativeFolder = found.relativeFolder,
                         .byteSize = file.byteSize,
                         .contentType = file.contentType});
    }
}

}  // namespace

void InputFileMaker::add(std::variant<FoundFiles, InputFile> found) {
    {
        const std::scoped_lock lock(mutex_);
        waiting_.push_back(std::move(found));
    }
    changed_.notify_one();
}

void InputFileMaker::close() {
    {
        const std::scoped_lock lock(mutex_);
        isClosed_ = true;
    }
    changed_.notify_one();
}

std::vector<InputFile> InputFileMaker::makeAll() {
    std::vector<InputFile> files;
    for (std::unique_lock lock(mutex_);;) {
        changed_.wait(lock, [this] { return isClosed_ || !waiting_.empty(); });
        if (waiting_.empty()) return files;
        auto batch = std::exchange(waiting_, {});
        lock.unlock();
        for (auto& found : batch) {
            std::visit([&files](auto& each) { append(each, files); }, found);
        }
        lock.lock();
    }
}

}  // namespace tamble
