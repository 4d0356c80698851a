#pragma once

#include <Tamble/Desktop/Models/ToolModel.h>

namespace tamble {

/// Old and new names of the files of the open tool, with what is wrong with each.
class NamesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(QString summary READ summary NOTIFY planned)
    Q_PROPERTY(int problemCount READ problemCount NOTIFY planned)
    Q_PROPERTY(QString obstacle READ obstacle NOTIFY planned)
    Q_PROPERTY(bool isActive READ isActive WRITE setActive NOTIFY planned)

  public:
    enum Role { oldName = Qt::UserRole, newName, problem, isSame, folder };

    explicit NamesModel(ToolModel& tool, QObject* parent = nullptr);
    ~NamesModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool isActive() const { return isActive_; }
    void setActive(bool active);
    /// "198 of 200 get a new name".
    QString summary() const;
    int problemCount() const { return problemCount_; }
    /// Why the files cannot be renamed like this; empty when they can.
    QString obstacle() const;

  signals:
    void planned();

  private:
    void refresh();
    void take(std::vector<PlannedName> names);

    ToolModel& tool_;
    std::vector<PlannedName> names_;
    int problemCount_ = 0;
    int changeCount_ = 0;
    bool isActive_ = false;
    std::uint64_t round_ = 0;
    QThreadPool pool_;
};

}  // namespace tamble
