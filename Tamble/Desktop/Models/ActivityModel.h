#pragma once

#include <Tamble/Model/ActivityStore.h>
#include <Tamble/Model/JobRecovery.h>

#include <QAbstractListModel>
#include <QThreadPool>
#include <QtQmlIntegration>
#include <map>

namespace tamble {

/// The log of finished jobs. The log itself is read and changed by one thread of its own: it may tell of
/// hundreds of thousands of files.
class ActivityModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY countChanged)

  public:
    enum Role {
        entryID = Qt::UserRole,
        title,
        subject,
        sizes,
        time,
        symbol,
        category,
        isUndone,
        isUndoing,
        report,
        canShow,
        details
    };

    explicit ActivityModel(QObject* parent = nullptr);
    ~ActivityModel() override;

    /// Reads the log again, on its thread.
    void reload();
    /// Puts jobs during which a program died into the log, and tells of them.
    void recover();

    int count() const { return static_cast<int>(rows_.size()); }
    bool isLoaded() const { return isLoaded_; }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void undo(const QString& id);
    /// Forgets the jobs; their files stay as they are.
    Q_INVOKABLE void clear();
    /// The new files of a job, or the folder they are in.
    Q_INVOKABLE void showInFolder(const QString& id);
    /// What an undo did, once it is over; empty before.
    Q_INVOKABLE QString reportOf(const QString& id) const;
    Q_INVOKABLE bool isBeingUndone(const QString& id) const { return undoing_.contains(id.toStdString()); }
    Q_INVOKABLE bool isUndoneOrUndoing(const QString& id) const;

  signals:
    void countChanged();
    void undone(const QString& id, const QString& report);
    void showRequested(const std::vector<std::filesystem::path>& files);
    /// A job was interrupted: which, in words, and its entry if it can be undone.
    void interrupted(const QString& sentence, const QString& id);

  private:
    struct Row {
        std::string id, date, toolID;
        QString subject;
        int done = 0, skipped = 0, failed = 0;
        std::int64_t bytesBefore = 0, bytesAfter = 0;
        bool undone = false;
        friend bool operator==(const Row&, const Row&) = default;
    };

    std::vector<Row> readRows();
    void take(std::vector<Row> rows);
    void rowChanged(const std::string& id);
    QString detailsOf(const Row& row) const;

    /// Touched by the log's thread alone.
    ActivityStore store_;
    std::vector<Row> rows_;
    bool isLoaded_ = false;
    std::set<std::string> undoing_;
    std::map<std::string, QString> reports_;
    QThreadPool log_;
};

}  // namespace tamble
