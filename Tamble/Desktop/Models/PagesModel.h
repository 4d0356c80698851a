#pragma once

#include <Tamble/Desktop/Models/DocumentModel.h>
#include <Tamble/Model/PageEdits.h>

#include <QAbstractListModel>

namespace tamble {

/// The pages of the document as they are arranged or picked; what they come to goes into the tool's settings.
class PagesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(bool isOrdering READ isOrdering NOTIFY changed)
    Q_PROPERTY(int current READ current NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY changed)
    Q_PROPERTY(bool selectionIsLeftOut READ selectionIsLeftOut NOTIFY changed)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)
    Q_PROPERTY(bool canReset READ canReset NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    Q_PROPERTY(QString heading READ heading NOTIFY changed)
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    Q_PROPERTY(QString missing READ missing NOTIFY changed)

  public:
    enum Role { source = Qt::UserRole, picture, ratio, turn, isSelected, isLeftOut };

    PagesModel(ToolModel& tool, DocumentModel& document, QObject* parent = nullptr);

    bool isOrdering() const { return edits_.use() == PageUse::order; }
    /// The row of the keyboard.
    int current() const { return current_; }
    int count() const { return rowCount(); }
    int selectedCount() const { return edits_.selectedCount(); }
    bool selectionIsLeftOut() const { return edits_.areSelectedLeftOut(); }
    bool canUndo() const { return edits_.canUndo(); }
    bool canReset() const { return edits_.isChanged(); }
    /// "12 pages · 3 selected".
    QString summary() const;
    /// What is done here, and how.
    QString heading() const;
    QString advice() const;
    /// What has to be done before the job can start, or why it cannot; empty when nothing, or the tool says
    /// it.
    QString missing() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// A click with Qt's modifiers.
    Q_INVOKABLE void press(int row, int modifiers);
    /// The keyboard goes to that row, or as near as there is one.
    Q_INVOKABLE void walk(int row, int modifiers);
    /// Picks the row, or no longer.
    Q_INVOKABLE void toggle(int row);
    Q_INVOKABLE void select(const QList<int>& rows, int modifiers);
    Q_INVOKABLE void selectAll(bool selected);
    Q_INVOKABLE bool isRowSelected(int row) const;
    /// Degrees clockwise.
    Q_INVOKABLE void turnSelected(int degrees);
    Q_INVOKABLE void leaveOut();
    /// Before that row, counted as they stand now.
    Q_INVOKABLE void moveBefore(int row);
    Q_INVOKABLE void moveBy(int rows);
    Q_INVOKABLE void undo();
    Q_INVOKABLE void startOver();

  signals:
    void changed();

  private:
    void begin();
    void edit(const std::function<void(PageEdits&)>& change);
    void show(const std::vector<PageEdits::Page>& pages);
    void store();

    ToolModel& tool_;
    DocumentModel& document_;
    PageEdits edits_;
    /// As the views know them.
    std::vector<PageEdits::Page> rows_;
    int current_ = 0;
};

}  // namespace tamble
