#pragma once

#include <Tamble/Desktop/Models/FileListModel.h>
#include <Tamble/Desktop/Models/Forecast.h>
#include <Tamble/Desktop/Models/PanelModel.h>
#include <Tamble/Desktop/Models/SaveModel.h>

namespace tamble {

/// The tool that is open: its files, its options, where it saves, and what is expected of it.
class ToolModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY opened)
    Q_PROPERTY(QString toolID READ toolID NOTIFY opened)
    Q_PROPERTY(QString title READ title NOTIFY opened)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY opened)
    Q_PROPERTY(QString symbol READ symbol NOTIFY opened)
    Q_PROPERTY(QString category READ category NOTIFY opened)
    Q_PROPERTY(QString editor READ editor NOTIFY opened)
    Q_PROPERTY(QString invitation READ invitation NOTIFY opened)
    Q_PROPERTY(bool ordersFiles READ ordersFiles NOTIFY opened)
    Q_PROPERTY(tamble::FileListModel* files READ files CONSTANT)
    Q_PROPERTY(tamble::PanelModel* panel READ panel CONSTANT)
    Q_PROPERTY(tamble::SaveModel* save READ save CONSTANT)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    Q_PROPERTY(QString missing READ missing NOTIFY changed)
    Q_PROPERTY(QString startText READ startText NOTIFY changed)
    Q_PROPERTY(bool canStart READ canStart NOTIFY changed)
    Q_PROPERTY(tamble::Forecast* forecast READ forecast CONSTANT)

  public:
    ToolModel(PreferencesStore& preferences, std::shared_ptr<WorkerPool> workers, QObject* parent = nullptr);

    /// Opens the tool with those of the files that it works with.
    void open(const ToolInfo& tool, std::span<const InputFile> files);
    void add(std::span<const InputFile> files);
    /// Leaves out files that are gone by now.
    void removeGone();
    /// Forgets the files and what was worked out about them.
    void close();
    /// Null when none is open.
    ToolSession* session() { return session_.get(); }
    JobOrder order(int maxConcurrent);

    bool isOpen() const { return session_ != nullptr; }
    QString toolID() const;
    QString title() const;
    QString subtitle() const;
    QString symbol() const;
    QString category() const;
    QString editor() const;
    /// Stands where files are dropped; empty for the usual one.
    QString invitation() const;
    bool ordersFiles() const { return isOpen() && session_->ordersFiles(); }
    FileListModel* files() { return &files_; }
    PanelModel* panel() { return &panel_; }
    SaveModel* save() { return &save_; }
    QString summary() const;
    QString notice() const { return notice_; }
    QString missing() const;
    QString startText() const;
    bool canStart() const;
    Forecast* forecast() { return &forecast_; }

    /// Settings that an editor worked out: {"pages": […]}.
    void change(const Json& changes);

  signals:
    void opened();
    void changed();
    void noticeChanged();
    /// The settings, the password or the files are others than before.
    void inputsChanged();

  private:
    void filesChanged();
    void settingsChanged();
    void setNotice(const QString& notice);

    std::unique_ptr<ToolSession> session_;
    FileListModel files_;
    PanelModel panel_;
    SaveModel save_;
    QString notice_;
    Forecast forecast_;
};

}  // namespace tamble
