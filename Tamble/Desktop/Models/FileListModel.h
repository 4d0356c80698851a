#pragma once

#include <Tamble/Model/ToolSession.h>

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace tamble {

/// The files that a tool works on.
class FileListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to a tool.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

  public:
    enum Role { name = Qt::UserRole, folder, size, picture, kind };
    enum Order { AsDropped, ByName, BySize, ByKind };
    Q_ENUM(Order)

    using QAbstractListModel::QAbstractListModel;
    /// Null for none.
    void show(ToolSession* session);
    /// The session's files are others than before.
    void refresh();

    int count() const { return rowCount(); }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void remove(const QList<int>& rows);
    Q_INVOKABLE void move(int from, int to);
    Q_INVOKABLE void sort(tamble::FileListModel::Order order);

  signals:
    void countChanged();
    /// People removed or moved files.
    void changed();

  private:
    ToolSession* session_ = nullptr;
};

/// What the picture of a file is called behind "image://file/"; empty for kinds of which there is none.
QString pictureSource(const InputFile& file);
/// The symbol that stands for the file's kind.
QString kindSymbol(const InputFile& file);

}  // namespace tamble
