#include <Tamble/Desktop/Models/SaveModel.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <TambleCore/Rename/RenamePanel.h>

namespace tamble {

SaveModel::SaveModel(PreferencesStore& preferences, QObject* parent)
    : QObject(parent), preferences_(preferences) {}

void SaveModel::show(ToolSession* session) {
    session_ = session;
    isTouched_ = false;
    sourcesChanged();
}

void SaveModel::sourcesChanged() {
    if (session_ != nullptr && !isTouched_) {
        session_->save = session_->hasFolders() ? preferences_.saveFolders() : preferences_.saveLooseFiles();
    }
    emit changed();
}

void SaveModel::remember() {
    if (session_ == nullptr || !isTouched_ || !preferences_.rememberFolderChoice()) return;
    try {
        if (session_->hasFolders()) {
            preferences_.setSaveFolders(session_->save);
        } else {
            preferences_.setSaveLooseFiles(session_->save);
        }
    } catch (const std::filesystem::filesystem_error&) {
        // The next job asks again.
    }
}

const SavePreferences& SaveModel::save() const {
    static const SavePreferences none;
    return session_ == nullptr ? none : session_->save;
}

void SaveModel::change(auto SavePreferences::*member, auto value) {
    if (session_ == nullptr || session_->save.*member == value) return;
    session_->save.*member = std::move(value);
    isTouched_ = true;
    emit changed();
}

void SaveModel::setMode(Mode mode) {
    change(&SavePreferences::mode, static_cast<SavePreferences::Mode>(mode));
}

void SaveModel::setClash(Clash clash) {
    change(&SavePreferences::clashPolicy, static_cast<ClashPolicy>(clash));
}

void SaveModel::setKeepStructure(bool keep) {
    change(&SavePreferences::keepStructure, keep);
}

void SaveModel::setAddDateFolder(bool add) {
    change(&SavePreferences::addDateFolder, add);
}

void SaveModel::setRenamesCopies(bool copies) {
    if (session_ == nullptr || copies == renamesCopies()) return;
    session_->renameWay = copies ? RenameWay::copies : RenameWay::inPlace;
    emit changed();
}

QString SaveModel::wayText() const {
    return renames() ? texts::engine(textOf(session_->renameWay).description) : QString();
}

namespace {

/// The folder of the mode "one folder", with the day's folder where that is wanted.
std::filesystem::path folderOf(SavePreferences preferences) {
    preferences.mode = SavePreferences::Mode::oneFolder;
    return std::get<location::Folder>(preferences.saveLocation(today())).value;
}

}  // namespace

QString SaveModel::folder() const {
    return texts::place(folderOf(save()));
}

QUrl SaveModel::folderUrl() const {
    SavePreferences preferences = save();
    preferences.addDateFolder = false;
    return urlOf(folderOf(preferences));
}

void SaveModel::chooseFolder(const QUrl& folder) {
    const auto path = pathOf(folder);
    if (session_ == nullptr || !path) return;
    session_->save.setFolder(*path);
    session_->save.mode = SavePreferences::Mode::oneFolder;
    session_->save.addDateFolder = false;
    isTouched_ = true;
    emit changed();
}

}  // namespace tamble
