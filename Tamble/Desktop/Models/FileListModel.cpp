#include <Tamble/Desktop/Models/FileListModel.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Intake/MediaTypes.h>
#include <TambleCore/Support/FileURL.h>

namespace tamble {
namespace {

/// Between a folder and the one in it.
const auto between = QStringLiteral(" › ");

}  // namespace

void FileListModel::show(ToolSession* session) {
    session_ = session;
    showsTree_ = true;
    refresh();
}

void FileListModel::refresh() {
    beginResetModel();
    selected_.clear();
    anchor_ = 0;
    endResetModel();
    emit countChanged();
    emit selectionChanged();
}

int FileListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || session_ == nullptr ? 0 : static_cast<int>(session_->files().size());
}

QVariant FileListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const InputFile& file = session_->files()[static_cast<std::size_t>(index.row())];
    switch (role) {
        case name:
            return texts::name(file.url.filename());
        case folder:
            return texts::place(file.url.parent_path());
        case size:
            return texts::size(file.byteSize);
        case picture:
            return pictureSource(file);
        case kind:
            return kindSymbol(file);
        case branch:
            return branchOf(file);
        case selected:
            return selected_.contains(index.row());
        default:
            return {};
    }
}

QHash<int, QByteArray> FileListModel::roleNames() const {
    return {{name, "name"}, {folder, "folder"}, {size, "size"},        {picture, "picture"},
            {kind, "kind"}, {branch, "branch"}, {selected, "selected"}};
}

void FileListModel::remove(const QList<int>& rows) {
    if (session_ == nullptr) return;
    std::vector<std::size_t> indexes;
    for (const int row : rows) {
        if (row >= 0 && row < count()) indexes.push_back(static_cast<std::size_t>(row));
    }
    removeRows(indexes);
}

void FileListModel::removeRows(const std::vector<std::size_t>& indexes) {
    if (indexes.empty()) return;
    if (indexes.size() == 1) {
        // The rest stays where it is on the screen.
        const int row = static_cast<int>(indexes.front());
        beginRemoveRows({}, row, row);
        session_->remove(indexes);
        endRemoveRows();
        setSelected({});
        emit countChanged();
    } else {
        session_->remove(indexes);
        refresh();
    }
    emit changed();
}

void FileListModel::setSelected(std::set<int> rows) {
    selected_ = std::move(rows);
    if (count() > 0) emit dataChanged(index(0), index(count() - 1), {selected});
    emit selectionChanged();
}

void FileListModel::select(int row) {
    anchor_ = row;
    setSelected({row});
}

void FileListModel::toggle(int row) {
    anchor_ = row;
    std::set<int> rows = selected_;
    if (rows.erase(row) == 0) rows.insert(row);
    setSelected(std::move(rows));
}

void FileListModel::selectTo(int row) {
    std::set<int> rows;
    for (int each = std::min(anchor_, row); each <= std::max(anchor_, row); ++each) rows.insert(each);
    setSelected(std::move(rows));
}

void FileListModel::selectAll() {
    anchor_ = 0;
    selectTo(count() - 1);
}

void FileListModel::removeSelected(int row) {
    const QList<int> rows(selected_.begin(), selected_.end());
    remove(rows.empty() ? QList<int>{row} : rows);
}

void FileListModel::move(int from, int to) {
    if (session_ == nullptr || from == to || from < 0 || to < 0 || from >= count() || to >= count()) return;
    // Qt names the row before which the file goes.
    if (!beginMoveRows({}, from, from, {}, to > from ? to + 1 : to)) return;
    session_->move(static_cast<std::size_t>(from), static_cast<std::size_t>(to));
    endMoveRows();
    select(to);
    emit changed();
}

void FileListModel::sort(Order order) {
    if (session_ == nullptr) return;
    session_->sort(static_cast<FileOrder>(order));
    showsTree_ = order == AsDropped;
    refresh();
    emit changed();
}

QString FileListModel::branchOf(const InputFile& file) const {
    if (!showsTree_ || !session_->hasFolders() || session_->ordersFiles()) return {};
    if (file.isLoose) return tr("Single files");
    const QString below = texts::name(file.relativeFolder).replace(QLatin1Char('/'), between);
    const QString root = texts::name(file.root.filename());
    return below.isEmpty() ? root : root + between + below;
}

std::vector<std::size_t> FileListModel::rowsBelow(const QString& wanted) const {
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; session_ != nullptr && i < session_->files().size(); ++i) {
        const QString at = branchOf(session_->files()[i]);
        if (at == wanted || at.startsWith(wanted + between)) rows.push_back(i);
    }
    return rows;
}

int FileListModel::filesBelow(const QString& wanted) const {
    return static_cast<int>(rowsBelow(wanted).size());
}

void FileListModel::removeBranch(const QString& wanted) {
    removeRows(rowsBelow(wanted));
}

QString pictureSource(const InputFile& file) {
    const char* kind = FileTypes::isReadableImage(file.contentType) ? "photo"
                       : FileTypes::isPDF(file.contentType)         ? "page/0"
                                                                    : nullptr;
    if (kind == nullptr) return {};
    return QStringLiteral("%1/%2").arg(QLatin1String(kind),
                                       QString::fromStdString(percentEncoded(file.url.native())));
}

QString kindSymbol(const InputFile& file) {
    const auto counts = KindCounts::of({&file, 1});
    if (counts.images > 0) return QStringLiteral("ui.photo");
    if (counts.videos > 0) return QStringLiteral("ui.video");
    if (counts.audio > 0) return QStringLiteral("ui.audio");
    if (counts.pdfs > 0) return QStringLiteral("ui.pdf");
    return counts.documents > 0 ? QStringLiteral("ui.document") : QStringLiteral("ui.file");
}

}  // namespace tamble
