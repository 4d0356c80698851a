#pragma once

#include <Tamble/Model/JobRunner.h>
#include <Tamble/Model/ToolSession.h>

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace tamble {

/// Rows of texts, as lists of results show them.
class RowsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to a model.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

  public:
    enum Role { title = Qt::UserRole, detail, place, depth, picture, kind };
    struct Row {
        QString title;
        QString detail = {};
        QString place = {};
        int depth = 0;
        QString picture = {};
        QString kind = {};
    };

    using QAbstractListModel::QAbstractListModel;
    void setRows(std::vector<Row> rows);

    int count() const { return static_cast<int>(rows_.size()); }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

  signals:
    void countChanged();

  private:
    std::vector<Row> rows_;
};

/// What became of the last job.
class ResultModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(QString category READ category NOTIFY changed)
    Q_PROPERTY(QString mood READ mood NOTIFY changed)
    Q_PROPERTY(QString activityID READ activityID NOTIFY changed)
    Q_PROPERTY(bool hasOutputs READ hasOutputs NOTIFY changed)
    Q_PROPERTY(tamble::RowsModel* folders READ folders CONSTANT)
    Q_PROPERTY(tamble::RowsModel* failures READ failures CONSTANT)
    Q_PROPERTY(tamble::RowsModel* notes READ notes CONSTANT)

  public:
    using QObject::QObject;

    void show(const FinishedJob& job, const ToolInfo& tool);
    /// Lets go of the files.
    void clear();

    /// What the job made, as files to work on; files in folders that it made among them.
    std::vector<std::filesystem::path> outputs() const;
    /// Those that could not be done.
    std::vector<InputFile> failedFiles() const;

    QString title() const { return title_; }
    QString subtitle() const { return subtitle_; }
    QString category() const { return category_; }
    /// The mascot's expression.
    QString mood() const { return mood_; }
    /// Empty for a job that cannot be undone.
    QString activityID() const { return activityID_; }
    bool hasOutputs() const { return !outputs_.empty(); }
    RowsModel* folders() { return &folders_; }
    RowsModel* failures() { return &failures_; }
    RowsModel* notes() { return &notes_; }

  signals:
    void changed();

  private:
    void describe(const JobResult& result, const ToolInfo& tool);
    void list(const JobResult& result);

    QString title_, subtitle_, category_, mood_, activityID_;
    std::vector<std::filesystem::path> outputs_;
    std::vector<InputFile> failed_;
    RowsModel folders_, failures_, notes_;
};

}  // namespace tamble
