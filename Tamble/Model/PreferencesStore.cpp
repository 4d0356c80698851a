#include <Tamble/Model/PreferencesStore.h>

#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Json/JsonCoding.h>
#include <TambleCore/Support/Log.h>

#include <algorithm>
#include <utility>

namespace tamble {
namespace {

constexpr Log preferencesLog("preferences");

constexpr const char* foldersKey = "save.folders";
constexpr const char* looseFilesKey = "save.looseFiles";
constexpr const char* rememberKey = "save.rememberFolderChoice";
constexpr const char* appearanceKey = "window.appearance";
constexpr const char* windowSizeKey = "window.size";
constexpr const char* notifyKey = "jobs.notifyWhenDone";
constexpr const char* atOnceKey = "jobs.atOnce";
constexpr const char* mediaHelperKey = "helpers.media";
constexpr const char* subjectModelKey = "helpers.subjectModel";
constexpr const char* usesKey = "tools.uses";

std::vector<ToolUse> usesIn(const Json& document) {
    std::vector<ToolUse> uses;
    const auto found = document.find(usesKey);
    if (found == document.end() || !found->is_array()) return uses;
    for (const Json& each : *found) {
        try {
            uses.push_back(decodeJson<ToolUse>(each));
        } catch (const DecodeError& error) {
            preferencesLog.error("Use of a tool unreadable: {}", error.what());
        }
    }
    return uses;
}

}  // namespace

PreferencesStore::PreferencesStore(std::filesystem::path fileURL) : file_(std::move(fileURL)) {}

std::filesystem::path PreferencesStore::defaultFile() {
    return folders::preferences() / "preferences.json";
}

SavePreferences PreferencesStore::saveFolders() const {
    return value(foldersKey, SavePreferences::forFolders());
}

SavePreferences PreferencesStore::saveLooseFiles() const {
    return value(looseFilesKey, SavePreferences::forLooseFiles());
}

bool PreferencesStore::rememberFolderChoice() const {
    return value(rememberKey, true);
}

Appearance PreferencesStore::appearance() const {
    return value(appearanceKey, Appearance::system);
}

std::optional<WindowSize> PreferencesStore::windowSize() const {
    const auto size = value(windowSizeKey, WindowSize());
    const auto isSide = [](int pixels) { return pixels > 0 && pixels <= 100'000; };
    return isSide(size.width) && isSide(size.height) ? std::optional(size) : std::nullopt;
}

bool PreferencesStore::notifyWhenDone() const {
    return value(notifyKey, true);
}

int PreferencesStore::atOnce() const {
    return std::clamp(value(atOnceKey, 0), 0, mostAtOnce);
}

std::filesystem::path PreferencesStore::mediaHelper() const {
    return value(mediaHelperKey, std::filesystem::path());
}

std::filesystem::path PreferencesStore::subjectModel() const {
    return value(subjectModelKey, std::filesystem::path());
}

std::vector<ToolUse> PreferencesStore::toolUses() const {
    return usesIn(read());
}

void PreferencesStore::setSaveFolders(const SavePreferences& preferences) {
    set(foldersKey, preferences);
}

void PreferencesStore::setSaveLooseFiles(const SavePreferences& preferences) {
    set(looseFilesKey, preferences);
}

void PreferencesStore::setRememberFolderChoice(bool remember) {
    set(rememberKey, remember);
}

void PreferencesStore::setAppearance(Appearance appearance) {
    set(appearanceKey, appearance);
}

void PreferencesStore::setWindowSize(const WindowSize& size) {
    set(windowSizeKey, size);
}

void PreferencesStore::setNotifyWhenDone(bool notify) {
    set(notifyKey, notify);
}

void PreferencesStore::setAtOnce(int items) {
    set(atOnceKey, std::clamp(items, 0, mostAtOnce));
}

void PreferencesStore::setMediaHelper(const std::filesystem::path& program) {
    setPath(mediaHelperKey, program);
}

void PreferencesStore::setSubjectModel(const std::filesystem::path& file) {
    setPath(subjectModelKey, file);
}

void PreferencesStore::countUse(const std::string& toolID, std::chrono::system_clock::time_point now) {
    update([&](Json& document) {
        auto uses = usesIn(document);
        tamble::countUse(uses, toolID, now);
        document[usesKey] = encodeJson(uses);
    });
}

Json PreferencesStore::read() const {
    return onDisk().value_or(Json::object());
}

/// Empty when there is a file that cannot be read or is no object.
std::optional<Json> PreferencesStore::onDisk() const {
    try {
        Json document = file_.read().value_or(Json::object());
        if (document.is_object()) return document;
        preferencesLog.error("Preferences unreadable: no object");
    } catch (const std::exception& error) {
        preferencesLog.error("Preferences unreadable: {}", causeOf(error));
    }
    return std::nullopt;
}

template <typename T>
T PreferencesStore::value(const char* key, T otherwise) const {
    const Json document = read();
    const auto found = document.find(key);
    if (found == document.end()) return otherwise;
    try {
        return decodeJson<T>(*found);
    } catch (const DecodeError& error) {
        preferencesLog.error("Preferences unreadable: {}", causeOf(error));
        return otherwise;
    }
}

template <typename T>
void PreferencesStore::set(const char* key, const T& value) {
    update([&](Json& document) { document[key] = encodeJson(value); });
}

void PreferencesStore::setPath(const char* key, const std::filesystem::path& path) {
    if (!path.empty()) return set(key, path);
    update([&](Json& document) { document.erase(key); });
}

/// Everything else in the file stays as it is.
void PreferencesStore::update(const std::function<void(Json&)>& change) {
    file_.update([&] {
        auto document = onDisk();
        if (!document) file_.moveAside();
        Json changed = std::move(document).value_or(Json::object());
        change(changed);
        return changed;
    });
}

}  // namespace tamble
