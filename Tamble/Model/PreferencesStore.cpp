#include <Tamble/Model/PreferencesStore.h>

#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>

#include <utility>

namespace tamble {
namespace {

constexpr Log preferencesLog("preferences");

constexpr const char* foldersKey = "save.folders";
constexpr const char* looseFilesKey = "save.looseFiles";
constexpr const char* rememberKey = "save.rememberFolderChoice";

}  // namespace

PreferencesStore::PreferencesStore(std::filesystem::path fileURL) : file_(std::move(fileURL)) {}

std::filesystem::path PreferencesStore::defaultFile() {
    return folders::preferences() / "preferences.json";
}

SavePreferences PreferencesStore::saveFolders() const {
    return read(foldersKey, SavePreferences::forFolders());
}

SavePreferences PreferencesStore::saveLooseFiles() const {
    return read(looseFilesKey, SavePreferences::forLooseFiles());
}

bool PreferencesStore::rememberFolderChoice() const {
    const Json document = read();
    const auto found = document.find(rememberKey);
    return found == document.end() || !found->is_boolean() || found->get<bool>();
}

void PreferencesStore::setSaveFolders(const SavePreferences& preferences) {
    set(foldersKey, encodeJson(preferences));
}

void PreferencesStore::setSaveLooseFiles(const SavePreferences& preferences) {
    set(looseFilesKey, encodeJson(preferences));
}

void PreferencesStore::setRememberFolderChoice(bool remember) {
    set(rememberKey, remember);
}

/// What cannot be read counts as never set.
Json PreferencesStore::read() const {
    try {
        if (auto document = file_.read(); document && document->is_object()) return std::move(*document);
    } catch (const std::exception& error) {
        preferencesLog.error("Preferences unreadable: {}", causeOf(error));
    }
    return Json::object();
}

SavePreferences PreferencesStore::read(const char* key, SavePreferences otherwise) const {
    const Json document = read();
    const auto found = document.find(key);
    if (found == document.end()) return otherwise;
    try {
        return decodeJson<SavePreferences>(*found);
    } catch (const DecodeError& error) {
        preferencesLog.error("Preferences unreadable: {}", causeOf(error));
        return otherwise;
    }
}

/// Everything else in the file stays as it is.
void PreferencesStore::set(const char* key, Json value) const {
    file_.update([&] {
        Json document = read();
        document[key] = std::move(value);
        return document;
    });
}

}  // namespace tamble
