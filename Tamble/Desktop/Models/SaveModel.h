#pragma once

#include <Tamble/Model/PreferencesStore.h>
#include <Tamble/Model/ToolSession.h>

#include <QObject>
#include <QUrl>
#include <QtQmlIntegration>

namespace tamble {

/// Where a tool saves and what happens on a name clash; for a tool that renames also how.
class SaveModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to a tool.")
    Q_PROPERTY(Mode mode READ mode WRITE setMode NOTIFY changed)
    Q_PROPERTY(Clash clash READ clash WRITE setClash NOTIFY changed)
    Q_PROPERTY(QString folder READ folder NOTIFY changed)
    Q_PROPERTY(QUrl folderUrl READ folderUrl NOTIFY changed)
    Q_PROPERTY(bool keepStructure READ keepStructure WRITE setKeepStructure NOTIFY changed)
    Q_PROPERTY(bool addDateFolder READ addDateFolder WRITE setAddDateFolder NOTIFY changed)
    Q_PROPERTY(bool canReplace READ canReplace NOTIFY changed)
    Q_PROPERTY(bool renames READ renames NOTIFY changed)
    Q_PROPERTY(bool renamesCopies READ renamesCopies WRITE setRenamesCopies NOTIFY changed)
    Q_PROPERTY(QString wayText READ wayText NOTIFY changed)

  public:
    enum Mode { NextToOriginal, OneFolder, Replace };
    Q_ENUM(Mode)
    enum Clash { AddNumber, Skip, ReplaceExisting };
    Q_ENUM(Clash)

    explicit SaveModel(PreferencesStore& preferences, QObject* parent = nullptr);
    /// Null for none.
    void show(ToolSession* session);
    /// Other kinds of sources have other remembered choices, as long as nothing was chosen for this job.
    void sourcesChanged();
    /// The job starts: what was chosen is remembered, if people want that.
    void remember();
    void refresh() { emit changed(); }

    Mode mode() const { return static_cast<Mode>(save().mode); }
    void setMode(Mode mode);
    Clash clash() const { return static_cast<Clash>(save().clashPolicy); }
    void setClash(Clash clash);
    QString folder() const;
    QUrl folderUrl() const;
    bool keepStructure() const { return save().keepStructure; }
    void setKeepStructure(bool keep);
    bool addDateFolder() const { return save().addDateFolder; }
    void setAddDateFolder(bool add);
    bool canReplace() const { return session_ != nullptr && session_->canReplaceOriginals(); }
    bool renames() const { return session_ != nullptr && session_->renames(); }
    bool renamesCopies() const { return session_ != nullptr && session_->renameWay == RenameWay::copies; }
    void setRenamesCopies(bool copies);
    QString wayText() const;

    Q_INVOKABLE void chooseFolder(const QUrl& folder);

  signals:
    void changed();

  private:
    const SavePreferences& save() const;
    void change(auto SavePreferences::*member, auto value);

    PreferencesStore& preferences_;
    ToolSession* session_ = nullptr;
    bool isTouched_ = false;
};

}  // namespace tamble
