#pragma once

#include <Tamble/Desktop/Models/ToolListModel.h>

#include <TambleCore/Intake/ScanResult.h>

#include <QStringList>
#include <QThreadPool>
#include <QUrl>
#include <stop_token>

namespace tamble {

/// What was dropped: looks through it off the main thread, and tells what it is and which tools fit.
class IntakeModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(QStringList notes READ notes NOTIFY changed)
    Q_PROPERTY(tamble::ToolListModel* best READ best CONSTANT)
    Q_PROPERTY(tamble::ToolListModel* others READ others CONSTANT)

  public:
    explicit IntakeModel(QObject* parent = nullptr);
    ~IntakeModel() override;

    const std::vector<InputFile>& files() const { return scan_.files; }

    bool isBusy() const { return pending_ > 0; }
    bool isEmpty() const { return scan_.files.empty(); }
    QString title() const { return title_; }
    QString subtitle() const { return subtitle_; }
    QStringList notes() const { return notes_; }
    ToolListModel* best() { return &best_; }
    ToolListModel* others() { return &others_; }

    /// Looks through files and folders, and adds them to what is there.
    Q_INVOKABLE void add(const QList<QUrl>& urls);
    void add(std::vector<std::filesystem::path> paths);
    /// Files that are known already take the place of what is there.
    void replace(std::vector<InputFile> files);
    /// Leaves out files that are gone by now.
    void removeGone();
    Q_INVOKABLE void clear();

    /// What a drag that holds these will bring, while it is over the window: "3 items".
    Q_INVOKABLE QString preview(const QList<QUrl>& urls) const;

  signals:
    void changed();
    /// A drop was looked through, and these files are in it.
    void found(const std::vector<tamble::InputFile>& files);
    /// A drop held nothing to work on; why, as a sentence.
    void nothingFound(const QString& sentence);

  private:
    void take(ScanResult scan);
    void describe();

    ScanResult scan_;
    QString title_;
    QString subtitle_;
    QStringList notes_;
    ToolListModel best_;
    ToolListModel others_;
    int pending_ = 0;
    /// Counts the clearings: a scan that began before one is of no interest.
    std::uint64_t round_ = 0;
    std::stop_source scanning_;
    QThreadPool pool_;
};

}  // namespace tamble
