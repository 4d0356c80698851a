#include <Tamble/Model/UndoMarks.h>

#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Json/JsonText.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>
#include <sstream>

namespace tamble {
namespace {

constexpr Log activityLog("activity");

template <typename Change>
void logged(const Change& change) {
    try {
        change();
    } catch (const std::filesystem::filesystem_error& error) {
        activityLog.error("Couldn't mark an undo: {}", causeOf(error));
    }
}

}  // namespace

UndoMarks::UndoMarks(const std::filesystem::path& activityFile) : file_(activityFile) {
    file_ += ".undoing";
    if (!std::filesystem::exists(file_)) return;
    std::istringstream lines(readWholeFile(file_));
    for (std::string id; std::getline(lines, id);) ids_.insert(id);
}

void UndoMarks::add(const std::string& id, std::span<const PlannedRename> wayBack) {
    if (!wayBack.empty()) {
        std::string text;
        appendJson(text, std::vector<PlannedRename>(wayBack.begin(), wayBack.end()));
        logged([&] { writeFileAtomically(wayBackFile(id), text); });
    }
    ids_.insert(id);
    save();
}

std::vector<PlannedRename> UndoMarks::wayBack(const std::string& id) const {
    try {
        if (!std::filesystem::exists(wayBackFile(id))) return {};
        return decodeJson<std::vector<PlannedRename>>(parseJson(readWholeFile(wayBackFile(id))));
    } catch (const std::exception& error) {
        activityLog.error("Couldn't read how far an undo came: {}", causeOf(error));
        return {};
    }
}

void UndoMarks::remove(const std::string& id) {
    ids_.erase(id);
    save();
    logged([&] { std::filesystem::remove(wayBackFile(id)); });
}

void UndoMarks::save() const {
    logged([this] {
        if (ids_.empty()) {
            std::filesystem::remove(file_);
            return;
        }
        std::string text;
        for (const auto& id : ids_) text += id + '\n';
        writeFileAtomically(file_, text);
    });
}

/// The id may come from anywhere.
std::filesystem::path UndoMarks::wayBackFile(const std::string& id) const {
    std::string name = id;
    std::ranges::replace(name, '/', '-');
    return std::filesystem::path(file_) += "-" + name;
}

}  // namespace tamble
