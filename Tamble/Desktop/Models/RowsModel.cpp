#include <Tamble/Desktop/Models/ResultModel.h>

namespace tamble {

void RowsModel::setRows(std::vector<Row> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
    emit countChanged();
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case title:
            return row.title;
        case detail:
            return row.detail;
        case place:
            return row.place;
        case depth:
            return row.depth;
        case picture:
            return row.picture;
        case kind:
            return row.kind;
        default:
            return {};
    }
}

QHash<int, QByteArray> RowsModel::roleNames() const {
    return {{title, "title"}, {detail, "detail"},   {place, "place"},
            {depth, "depth"}, {picture, "picture"}, {kind, "kind"}};
}

}  // namespace tamble
