#include <Tamble/Desktop/Models/PreferencesModel.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <TambleCore/Jobs/OutputPlanner.h>
#include <TambleCore/Platform/StandardFolders.h>

namespace tamble {

SaveDefaults::SaveDefaults(SavePreferences save, bool fromFolder, Write write, QObject* parent)
    : QObject(parent), save_(std::move(save)), fromFolder_(fromFolder), write_(std::move(write)) {}

template <typename Change>
void SaveDefaults::change(const Change& change) {
    const SavePreferences before = save_;
    change(save_);
    if (save_ == before) return;
    write_(save_);
    emit changed();
}

void SaveDefaults::setMode(int mode) {
    change([&](SavePreferences& save) { save.mode = static_cast<SavePreferences::Mode>(mode); });
}

void SaveDefaults::setClash(int clash) {
    change([&](SavePreferences& save) { save.clashPolicy = static_cast<ClashPolicy>(clash); });
}

void SaveDefaults::setKeepStructure(bool keep) {
    change([&](SavePreferences& save) { save.keepStructure = keep; });
}

void SaveDefaults::setAddDateFolder(bool add) {
    change([&](SavePreferences& save) { save.addDateFolder = add; });
}

void SaveDefaults::chooseFolder(const QUrl& folder) {
    const auto path = pathOf(folder);
    if (!path) return;
    change([&](SavePreferences& save) { save.setFolder(*path); });
}

void SaveDefaults::forgetFolder() {
    change([&](SavePreferences& save) { save.folderPath.reset(); });
}

QString SaveDefaults::folder() const {
    SavePreferences plain = save_;
    plain.mode = SavePreferences::Mode::oneFolder;
    plain.addDateFolder = false;
    return texts::place(std::get<location::Folder>(plain.saveLocation(today())).value);
}

QString SaveDefaults::example() const {
    const auto pictures = folders::home() / tr("Pictures").toStdString();
    const auto root = fromFolder_ ? pictures / "Goa trip" : pictures;
    const InputFile file{
        .url = FilePath(root / "beach.jpg"), .root = FilePath(root), .isLoose = !fromFolder_};
    const auto target = OutputPlanner{save_.saveLocation(today())}.intendedURL(file, "beach.webp");
    return texts::place(file.url) + QStringLiteral(" → ") + texts::place(target);
}

PreferencesModel::PreferencesModel(PreferencesStore& store, QObject* parent)
    : QObject(parent),
      store_(store),
      folders_(
          store.saveFolders(), true,
          [this](const SavePreferences& save) { write([&] { store_.setSaveFolders(save); }); }, this),
      looseFiles_(
          store.saveLooseFiles(), false,
          [this](const SavePreferences& save) { write([&] { store_.setSaveLooseFiles(save); }); }, this) {}

void PreferencesModel::write(const std::function<void()>& change) {
    try {
        change();
        problem_.clear();
    } catch (const std::filesystem::filesystem_error&) {
        problem_ = tr("Couldn't remember that: the folder of the settings can't be written.");
    }
    emit changed();
}

void PreferencesModel::setAppearance(int appearance) {
    write([&] { store_.setAppearance(static_cast<Appearance>(appearance)); });
}

void PreferencesModel::setRememberFolderChoice(bool remember) {
    write([&] { store_.setRememberFolderChoice(remember); });
}

void PreferencesModel::setNotifyWhenDone(bool notify) {
    write([&] { store_.setNotifyWhenDone(notify); });
}

void PreferencesModel::setAtOnce(int items) {
    write([&] { store_.setAtOnce(items); });
}

QString PreferencesModel::mediaHelper() const {
    return texts::place(store_.mediaHelper());
}

QString PreferencesModel::subjectModel() const {
    return texts::place(store_.subjectModel());
}

void PreferencesModel::setMediaHelper(const QUrl& program) {
    write([&] { store_.setMediaHelper(pathOf(program).value_or("")); });
}

void PreferencesModel::setSubjectModel(const QUrl& file) {
    write([&] { store_.setSubjectModel(pathOf(file).value_or("")); });
}

}  // namespace tamble
