#pragma once

#include <TambleCore/Catalog/ToolCatalog.h>

#include <QAbstractListModel>
#include <QtQmlIntegration>
#include <vector>

namespace tamble {

/// Tools as cards show them.
class ToolListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to a model.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

  public:
    enum Role { toolID = Qt::UserRole, title, subtitle, symbol, category, files, available };

    struct Entry {
        const ToolInfo* tool = nullptr;
        /// "128 photos"; may be empty.
        QString files = {};
    };

    using QAbstractListModel::QAbstractListModel;
    void setEntries(std::vector<Entry> entries);

    int count() const { return static_cast<int>(entries_.size()); }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The tool in that row; empty when there is none.
    Q_INVOKABLE QString toolAt(int row) const;

  signals:
    void countChanged();

  private:
    std::vector<Entry> entries_;
};

/// A category's name in code, as in "images": what the window's colours are called by.
QString categoryName(ToolCategory category);

}  // namespace tamble
