#pragma once

#include <Tamble/Model/SignatureStore.h>

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace tamble {

/// The signatures that were kept.
class SavedSignaturesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(int count READ count NOTIFY changed)

  public:
    enum Role { picture = Qt::UserRole };

    using QAbstractListModel::QAbstractListModel;

    int count() const { return rowCount(); }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void reload();
    void add(const std::vector<std::byte>& png, const std::vector<InkStroke>& strokes);
    Q_INVOKABLE void choose(int row);
    /// For good.
    Q_INVOKABLE void remove(int row);

  signals:
    void changed();
    void chosen(const std::vector<std::byte>& png);
    void failed(const QString& sentence);

  private:
    bool isRow(int row) const { return row >= 0 && row < rowCount(); }

    SignatureStore store_;
    std::vector<SavedSignature> signatures_;
};

}  // namespace tamble
