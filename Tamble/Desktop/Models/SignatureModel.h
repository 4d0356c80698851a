#pragma once

#include <Tamble/Desktop/Models/DocumentModel.h>

#include <TambleCore/PDF/PDFJobSettings.h>

#include <QAbstractListModel>

namespace tamble {

/// The signatures on the pages of the document; they go into the tool's settings.
class SignatureModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(int page READ page WRITE setPage NOTIFY changed)
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)

  public:
    enum Role { page_ = Qt::UserRole, left, top, across, down, picture };

    SignatureModel(ToolModel& tool, DocumentModel& document, QObject* parent = nullptr);

    /// The page that is shown, counted from 0.
    int page() const { return shownPage_; }
    void setPage(int page);
    /// The row of the chosen signature; -1 for none.
    int current() const { return current_; }
    void setCurrent(int row);
    int count() const { return rowCount(); }
    /// "2 signatures on 1 page".
    QString summary() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Puts one on the page that is shown.
    void place(const std::vector<std::byte>& png);
    /// Shares of the page; while it is dragged, the job does not know of it yet.
    Q_INVOKABLE void moveTo(int row, double x, double y);
    Q_INVOKABLE void widen(int row, double width);
    Q_INVOKABLE void settle();
    /// The chosen one.
    Q_INVOKABLE void nudge(double x, double y);
    Q_INVOKABLE void scale(double factor);
    Q_INVOKABLE void remove();
    /// Whether the page has any.
    Q_INVOKABLE bool isSigned(int page) const;

  signals:
    void changed();

  private:
    void begin();
    bool isTool() const;
    void change(int row, const NormalizedRect& rect);
    const NormalizedRect& rect(int row) const { return placements_[static_cast<std::size_t>(row)].rect; }
    bool isRow(int row) const { return row >= 0 && row < rowCount(); }

    ToolModel& tool_;
    DocumentModel& document_;
    std::vector<SignaturePlacement> placements_;
    int shownPage_ = 0;
    int current_ = -1;
};

}  // namespace tamble
