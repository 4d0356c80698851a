#include <Tamble/Desktop/Models/FileListModel.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Intake/MediaTypes.h>
#include <TambleCore/Support/FileURL.h>

namespace tamble {

void FileListModel::show(ToolSession* session) {
    session_ = session;
    refresh();
}

void FileListModel::refresh() {
    beginResetModel();
    endResetModel();
    emit countChanged();
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
        default:
            return {};
    }
}

QHash<int, QByteArray> FileListModel::roleNames() const {
    return {{name, "name"}, {folder, "folder"}, {size, "size"}, {picture, "picture"}, {kind, "kind"}};
}

void FileListModel::remove(const QList<int>& rows) {
    if (session_ == nullptr) return;
    std::vector<std::size_t> indexes;
    for (const int row : rows) {
        if (row >= 0 && row < count()) indexes.push_back(static_cast<std::size_t>(row));
    }
    if (indexes.empty()) return;
    if (indexes.size() == 1) {
        // The rest stays where it is on the screen.
        const int row = static_cast<int>(indexes.front());
        beginRemoveRows({}, row, row);
        session_->remove(indexes);
        endRemoveRows();
        emit countChanged();
    } else {
        session_->remove(indexes);
        refresh();
    }
    emit changed();
}

void FileListModel::move(int from, int to) {
    if (session_ == nullptr || from == to || from < 0 || to < 0 || from >= count() || to >= count()) return;
    // Qt names the row before which the file goes.
    if (!beginMoveRows({}, from, from, {}, to > from ? to + 1 : to)) return;
    session_->move(static_cast<std::size_t>(from), static_cast<std::size_t>(to));
    endMoveRows();
    emit changed();
}

void FileListModel::sort(Order order) {
    if (session_ == nullptr) return;
    session_->sort(static_cast<FileOrder>(order));
    refresh();
    emit changed();
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
