#pragma once

#include <Tamble/Model/ToolSession.h>

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace tamble {

/// The sections of a tool's panel as they stand, and what choosing in them changes.
class PanelModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to a tool.")

  public:
    enum Role {
        control = Qt::UserRole,
        heading,
        choices,
        moreLabel,
        moreChoices,
        label,
        number,
        lowest,
        highest,
        typed,
        placeholder,
        note
    };

    explicit PanelModel(QObject* parent = nullptr);
    /// Null for none.
    void show(ToolSession* session);
    /// The settings or the files are others than before.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// `choice` counts through the choices and then through those behind “more”.
    Q_INVOKABLE void choose(int row, int choice);
    Q_INVOKABLE void setNumber(int row, int value);
    /// The text or the password of the field.
    Q_INVOKABLE void type(int row, const QString& text);

  signals:
    /// Something was chosen.
    void changed();

  private:
    const PanelSection& section(int row) const;
    void change(const Json& changes);
    QVariantList shown(const std::vector<PanelChoice>& choices) const;

    ToolSession* session_ = nullptr;
    /// The sections that are shown, by their index in the panel.
    std::vector<std::size_t> rows_;
};

}  // namespace tamble
