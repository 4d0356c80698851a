#include <Tamble/Model/UndoMarks.h>

#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>

#include <sstream>

namespace tamble {
namespace {

constexpr Log activityLog("activity");

}  // namespace

UndoMarks::UndoMarks(const std::filesystem::path& activityFile) : file_(activityFile) {
    file_ += ".undoing";
    if (!std::filesystem::exists(file_)) return;
    std::istringstream lines(readWholeFile(file_));
    for (std::string id; std::getline(lines, id);) ids_.insert(id);
}

void UndoMarks::add(const std::string& id) {
    ids_.insert(id);
    save();
}

void UndoMarks::remove(const std::string& id) {
    ids_.erase(id);
    save();
}

void UndoMarks::save() const {
    try {
        if (ids_.empty()) {
            std::filesystem::remove(file_);
            return;
        }
        std::string text;
        for (const auto& id : ids_) text += id + '\n';
        writeFileAtomically(file_, text);
    } catch (const std::filesystem::filesystem_error& error) {
        activityLog.error("Couldn't mark an undo: {}", causeOf(error));
    }
}

}  // namespace tamble
