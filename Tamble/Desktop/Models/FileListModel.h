#pragma once

#include <Tamble/Model/ToolSession.h>

#include <QAbstractListModel>
#include <QtQmlIntegration>
#include <set>

namespace tamble {

/// The files that a tool works on.
class FileListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to a tool.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)

  public:
    enum Role { name = Qt::UserRole, folder, size, picture, kind, branch, selected };
    enum Order { AsDropped, ByName, BySize, ByKind };
    Q_ENUM(Order)

    using QAbstractListModel::QAbstractListModel;
    /// Null for none.
    void show(ToolSession* session);
    /// The session's files are others than before.
    void refresh();

    int count() const { return rowCount(); }
    int selectedCount() const { return static_cast<int>(selected_.size()); }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void remove(const QList<int>& rows);
    /// Of a folder in the tree of what was dropped, "Goa trip › Beach": how many files are in it, those of
    /// its subfolders included.
    Q_INVOKABLE int filesBelow(const QString& branch) const;
    Q_INVOKABLE void removeBranch(const QString& branch);
    /// The one row; as well or no longer; all rows from the one that was selected last.
    Q_INVOKABLE void select(int row);
    Q_INVOKABLE void toggle(int row);
    Q_INVOKABLE void selectTo(int row);
    Q_INVOKABLE void selectAll();
    /// `row` where nothing is selected.
    Q_INVOKABLE void removeSelected(int row);
    Q_INVOKABLE void move(int from, int to);
    Q_INVOKABLE void sort(tamble::FileListModel::Order order);

  signals:
    void countChanged();
    void selectionChanged();
    /// People removed or moved files.
    void changed();

  private:
    QString branchOf(const InputFile& file) const;
    /// The rows of a folder and of those below it.
    std::vector<std::size_t> rowsBelow(const QString& branch) const;
    void setSelected(std::set<int> rows);
    void removeRows(const std::vector<std::size_t>& rows);

    ToolSession* session_ = nullptr;
    std::set<int> selected_;
    int anchor_ = 0;
    /// Other orders tear folders apart.
    bool showsTree_ = true;
};

/// What the picture of a file is called behind "image://file/"; empty for kinds of which there is none.
QString pictureSource(const InputFile& file);
/// The symbol that stands for the file's kind.
QString kindSymbol(const InputFile& file);

}  // namespace tamble
