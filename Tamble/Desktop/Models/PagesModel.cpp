#include <Tamble/Desktop/Models/PagesModel.h>

#include <algorithm>

namespace tamble {
namespace {

std::optional<PageUse> useOf(const ToolModel& tool) {
    const QString editor = tool.editor();
    if (editor == QLatin1String("pageOrder")) return PageUse::order;
    if (editor == QLatin1String("pageDeletion")) return PageUse::deletion;
    if (editor == QLatin1String("pageSelection")) return PageUse::selection;
    return std::nullopt;
}

PageReach reachOf(int modifiers, bool isOrdering) {
    if ((modifiers & Qt::ShiftModifier) != 0) return PageReach::through;
    // Picking is ticking: a page stays picked when another one is.
    return (modifiers & Qt::ControlModifier) != 0 || !isOrdering ? PageReach::besides : PageReach::only;
}

}  // namespace

PagesModel::PagesModel(ToolModel& tool, DocumentModel& document, QObject* parent)
    : QAbstractListModel(parent), tool_(tool), document_(document) {
    connect(&document_, &DocumentModel::replaced, this, &PagesModel::begin);
    connect(&document_, &DocumentModel::changed, this, &PagesModel::changed);
}

void PagesModel::begin() {
    const auto use = useOf(tool_);
    beginResetModel();
    edits_ = PageEdits(use.value_or(PageUse::order), use ? document_.pageCount() : 0);
    rows_ = edits_.pages();
    current_ = 0;
    endResetModel();
    if (use) store();
    emit changed();
}

void PagesModel::store() {
    const auto result = edits_.result();
    Json changes = Json::object();
    changes["pages"] = result ? encodeJson(*result) : Json(nullptr);
    // What was typed for several documents must not go on behind the pages that are shown.
    if (document_.state() != DocumentModel::Nothing) changes["pageList"] = nullptr;
    tool_.change(changes);
}

QString PagesModel::summary() const {
    QString text = tr("%n page(s)", nullptr, count());
    const auto add = [&text](const QString& more) { text += QStringLiteral(" · ") + more; };
    if (isOrdering()) {
        if (edits_.leftOutCount() > 0) add(tr("%n left out", nullptr, edits_.leftOutCount()));
        if (selectedCount() > 0) add(tr("%n selected", nullptr, selectedCount()));
    } else if (selectedCount() > 0) {
        add(edits_.use() == PageUse::deletion ? tr("%n to be deleted", nullptr, selectedCount())
                                              : tr("%n to be taken out", nullptr, selectedCount()));
    }
    return text;
}

QString PagesModel::heading() const {
    if (isOrdering()) return tr("Put the pages in order");
    return edits_.use() == PageUse::deletion ? tr("Which pages should go?") : tr("Which pages do you want?");
}

QString PagesModel::advice() const {
    return isOrdering()
               ? tr("Drag pages to where they belong. Select several to move, turn or leave them out "
                    "together.")
               : tr("Click the pages, or draw a frame around them. Hold Shift for all in between.");
}

QString PagesModel::missing() const {
    if (!document_.isActive()) return {};
    if (!document_.sentence().isEmpty()) return document_.sentence();
    if (count() == 0 || edits_.result()) return {};
    return isOrdering() ? tr("Move, turn or leave out a page first.") : tr("Pick at least one page first.");
}

int PagesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant PagesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const PageEdits::Page& page = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case source:
            return page.source;
        case picture:
            return document_.picture(page.source);
        case ratio:
            return document_.ratio(page.source);
        case turn:
            return page.rotation;
        case isSelected:
            return page.isSelected;
        case isLeftOut:
            return page.isLeftOut;
        default:
            return {};
    }
}

QHash<int, QByteArray> PagesModel::roleNames() const {
    return {{source, "source"}, {picture, "picture"},       {ratio, "ratio"},
            {turn, "turn"},     {isSelected, "isSelected"}, {isLeftOut, "isLeftOut"}};
}

void PagesModel::edit(const std::function<void(PageEdits&)>& change) {
    if (count() == 0) return;
    const auto result = edits_.result();
    const int currentPage = rows_[static_cast<std::size_t>(current_)].source;
    change(edits_);
    show(edits_.pages());
    current_ =
        static_cast<int>(std::ranges::find(rows_, currentPage, &PageEdits::Page::source) - rows_.begin());
    if (edits_.result() != result) store();
    emit changed();
}

void PagesModel::show(const std::vector<PageEdits::Page>& pages) {
    for (const auto& [from, to] : movesBetween(rows_, pages)) {
        // Qt names the row before which it goes.
        if (!beginMoveRows({}, from, from, {}, to > from ? to + 1 : to)) continue;
        const PageEdits::Page page = rows_[static_cast<std::size_t>(from)];
        rows_.erase(rows_.begin() + from);
        rows_.insert(rows_.begin() + to, page);
        endMoveRows();
    }
    for (int row = 0; row < count(); ++row) {
        const auto at = static_cast<std::size_t>(row);
        if (rows_[at] == pages[at]) continue;
        rows_[at] = pages[at];
        emit dataChanged(index(row), index(row));
    }
}

void PagesModel::press(int row, int modifiers) {
    if (row < 0 || row >= count()) return;
    current_ = row;
    edit([&](PageEdits& edits) { edits.select(row, reachOf(modifiers, isOrdering())); });
}

void PagesModel::walk(int row, int modifiers) {
    if (count() == 0) return;
    current_ = std::clamp(row, 0, count() - 1);
    const bool selects =
        (modifiers & Qt::ShiftModifier) != 0 || (isOrdering() && (modifiers & Qt::ControlModifier) == 0);
    if (selects) return press(current_, modifiers);
    emit changed();
}

void PagesModel::toggle(int row) {
    edit([row](PageEdits& edits) { edits.select(row, PageReach::besides); });
}

void PagesModel::select(const QList<int>& rows, int modifiers) {
    const bool besides = !isOrdering() || (modifiers & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
    edit([&](PageEdits& edits) { edits.select({rows.begin(), rows.end()}, besides); });
}

void PagesModel::selectAll(bool selected) {
    edit([selected](PageEdits& edits) { edits.selectAll(selected); });
}

bool PagesModel::isRowSelected(int row) const {
    return row >= 0 && row < count() && rows_[static_cast<std::size_t>(row)].isSelected;
}

void PagesModel::turnSelected(int degrees) {
    edit([degrees](PageEdits& edits) { edits.turn(degrees); });
}

void PagesModel::leaveOut() {
    edit([](PageEdits& edits) { edits.toggleLeftOut(); });
}

void PagesModel::moveBefore(int row) {
    edit([row](PageEdits& edits) { edits.moveBefore(row); });
}

void PagesModel::moveBy(int rows) {
    edit([rows](PageEdits& edits) { edits.moveBy(rows); });
}

void PagesModel::undo() {
    edit([](PageEdits& edits) { edits.undo(); });
}

void PagesModel::startOver() {
    edit([](PageEdits& edits) { edits.reset(); });
}

}  // namespace tamble
