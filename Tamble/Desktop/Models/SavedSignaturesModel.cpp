#include <Tamble/Desktop/Models/SavedSignaturesModel.h>
#include <Tamble/Desktop/Pictures/InkPicture.h>

namespace tamble {

int SavedSignaturesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(signatures_.size());
}

QVariant SavedSignaturesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != picture) return {};
    return sourceOf(signatures_[static_cast<std::size_t>(index.row())].imagePNG);
}

QHash<int, QByteArray> SavedSignaturesModel::roleNames() const {
    return {{picture, "picture"}};
}

void SavedSignaturesModel::reload() {
    auto signatures = store_.all();
    if (signatures == signatures_) return;
    beginResetModel();
    signatures_ = std::move(signatures);
    endResetModel();
    emit changed();
}

void SavedSignaturesModel::add(const std::vector<std::byte>& png, const std::vector<InkStroke>& strokes) {
    try {
        if (!store_.add(png, strokes))
            emit failed(tr("This signature isn't kept for next time: %n are kept already.", nullptr,
                           static_cast<int>(SignatureStore::maximum)));
    } catch (const std::filesystem::filesystem_error&) {
        emit failed(tr("This signature couldn't be kept for next time."));
    }
    reload();
}

void SavedSignaturesModel::choose(int row) {
    if (isRow(row)) emit chosen(signatures_[static_cast<std::size_t>(row)].imagePNG);
}

void SavedSignaturesModel::remove(int row) {
    if (!isRow(row)) return;
    try {
        store_.remove(signatures_[static_cast<std::size_t>(row)].id);
    } catch (const std::filesystem::filesystem_error&) {
        emit failed(tr("This signature couldn't be deleted."));
    }
    reload();
}

}  // namespace tamble
