#pragma once

#include <Tamble/Model/PreferencesStore.h>

#include <QObject>
#include <QUrl>
#include <QtQmlIntegration>

namespace tamble {

/// One of the two remembered sets of where to save.
class SaveDefaults : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the preferences.")
    Q_PROPERTY(int mode READ mode WRITE setMode NOTIFY changed)
    Q_PROPERTY(int clash READ clash WRITE setClash NOTIFY changed)
    Q_PROPERTY(QString folder READ folder NOTIFY changed)
    Q_PROPERTY(bool keepStructure READ keepStructure WRITE setKeepStructure NOTIFY changed)
    Q_PROPERTY(bool addDateFolder READ addDateFolder WRITE setAddDateFolder NOTIFY changed)
    Q_PROPERTY(QString example READ example NOTIFY changed)

  public:
    using Write = std::function<void(const SavePreferences&)>;
    /// `fromFolder`: whether the set is for files of dropped folders.
    SaveDefaults(SavePreferences save, bool fromFolder, Write write, QObject* parent);

    int mode() const { return static_cast<int>(save_.mode); }
    void setMode(int mode);
    int clash() const { return static_cast<int>(save_.clashPolicy); }
    void setClash(int clash);
    QString folder() const;
    bool keepStructure() const { return save_.keepStructure; }
    void setKeepStructure(bool keep);
    bool addDateFolder() const { return save_.addDateFolder; }
    void setAddDateFolder(bool add);
    /// Where a photo would be saved: "~/Pictures/Goa trip/beach.jpg → …".
    QString example() const;
    Q_INVOKABLE void chooseFolder(const QUrl& folder);
    /// Downloads › Tamble again.
    Q_INVOKABLE void forgetFolder();

  signals:
    void changed();

  private:
    template <typename Change>
    void change(const Change& change);

    SavePreferences save_;
    bool fromFolder_;
    Write write_;
};

/// What people set for good.
class PreferencesModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(int appearance READ appearance WRITE setAppearance NOTIFY changed)
    Q_PROPERTY(
        bool rememberFolderChoice READ rememberFolderChoice WRITE setRememberFolderChoice NOTIFY changed)
    Q_PROPERTY(bool notifyWhenDone READ notifyWhenDone WRITE setNotifyWhenDone NOTIFY changed)
    Q_PROPERTY(int atOnce READ atOnce WRITE setAtOnce NOTIFY changed)
    Q_PROPERTY(int mostAtOnce READ mostAtOnce CONSTANT)
    Q_PROPERTY(QString mediaHelper READ mediaHelper NOTIFY changed)
    Q_PROPERTY(QString subjectModel READ subjectModel NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(tamble::SaveDefaults* folders READ folders CONSTANT)
    Q_PROPERTY(tamble::SaveDefaults* looseFiles READ looseFiles CONSTANT)

  public:
    explicit PreferencesModel(PreferencesStore& store, QObject* parent = nullptr);

    int appearance() const { return static_cast<int>(store_.appearance()); }
    void setAppearance(int appearance);
    bool rememberFolderChoice() const { return store_.rememberFolderChoice(); }
    void setRememberFolderChoice(bool remember);
    bool notifyWhenDone() const { return store_.notifyWhenDone(); }
    void setNotifyWhenDone(bool notify);
    /// 0 when the machine decides.
    int atOnce() const { return store_.atOnce(); }
    void setAtOnce(int items);
    int mostAtOnce() const { return PreferencesStore::mostAtOnce; }
    QString mediaHelper() const;
    QString subjectModel() const;
    /// Why something could not be remembered; empty when it could.
    QString problem() const { return problem_; }
    SaveDefaults* folders() { return &folders_; }
    SaveDefaults* looseFiles() { return &looseFiles_; }

    /// An empty one stands for the usual helper.
    Q_INVOKABLE void setMediaHelper(const QUrl& program);
    Q_INVOKABLE void setSubjectModel(const QUrl& file);

  signals:
    void changed();

  private:
    void write(const std::function<void()>& change);

    PreferencesStore& store_;
    QString problem_;
    SaveDefaults folders_;
    SaveDefaults looseFiles_;
};

}  // namespace tamble
