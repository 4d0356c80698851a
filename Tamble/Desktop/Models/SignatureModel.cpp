#include <Tamble/Desktop/Models/SignatureModel.h>
#include <Tamble/Desktop/Pictures/InkPicture.h>
#include <Tamble/Model/SignaturePlace.h>

#include <TambleCore/Support/UUID.h>

#include <algorithm>

namespace tamble {

SignatureModel::SignatureModel(ToolModel& tool, DocumentModel& document, QObject* parent)
    : QAbstractListModel(parent), tool_(tool), document_(document) {
    connect(&document_, &DocumentModel::replaced, this, &SignatureModel::begin);
}

bool SignatureModel::isTool() const {
    return tool_.editor() == QLatin1String("signature");
}

void SignatureModel::begin() {
    const bool had = !placements_.empty();
    beginResetModel();
    placements_.clear();
    shownPage_ = 0;
    current_ = -1;
    endResetModel();
    if (had && isTool()) settle();
    emit changed();
}

void SignatureModel::setPage(int page) {
    shownPage_ = std::clamp(page, 0, std::max(0, document_.pageCount() - 1));
    if (isRow(current_) && placements_[static_cast<std::size_t>(current_)].page != shownPage_) current_ = -1;
    emit changed();
}

void SignatureModel::setCurrent(int row) {
    current_ = isRow(row) ? row : -1;
    emit changed();
}

QString SignatureModel::summary() const {
    return tr("%n signature(s)", nullptr, count());
}

int SignatureModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(placements_.size());
}

QVariant SignatureModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const SignaturePlacement& placement = placements_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case page_:
            return placement.page;
        case left:
            return placement.rect.x;
        case top:
            return placement.rect.y;
        case across:
            return placement.rect.width;
        case down:
            return placement.rect.height;
        case picture:
            return sourceOf(placement.imagePNG);
        default:
            return {};
    }
}

QHash<int, QByteArray> SignatureModel::roleNames() const {
    return {{page_, "page"},    {left, "leftShare"}, {top, "topShare"},
            {across, "across"}, {down, "down"},      {picture, "picture"}};
}

void SignatureModel::place(const std::vector<std::byte>& png) {
    const auto ratio = ratioOf(png);
    if (!ratio || document_.pageCount() == 0 || !isTool()) return;
    beginInsertRows({}, count(), count());
    placements_.push_back({.id = newUUID(),
                           .page = shownPage_,
                           .rect = SignaturePlace::first(*ratio, document_.ratio(shownPage_)),
                           .imagePNG = png});
    endInsertRows();
    current_ = count() - 1;
    settle();
    emit changed();
}

void SignatureModel::change(int row, const NormalizedRect& rect) {
    placements_[static_cast<std::size_t>(row)].rect = rect;
    emit dataChanged(index(row), index(row), {left, top, across, down});
}

void SignatureModel::moveTo(int row, double x, double y) {
    if (isRow(row)) change(row, SignaturePlace::movedTo(rect(row), x, y));
}

void SignatureModel::widen(int row, double width) {
    if (isRow(row)) change(row, SignaturePlace::widened(rect(row), width));
}

void SignatureModel::settle() {
    Json changes = Json::object();
    changes["signatures"] = encodeJson(placements_);
    tool_.change(changes);
}

void SignatureModel::nudge(double x, double y) {
    if (!isRow(current_)) return;
    moveTo(current_, rect(current_).x + x, rect(current_).y + y);
    settle();
}

void SignatureModel::scale(double factor) {
    if (!isRow(current_)) return;
    change(current_, SignaturePlace::scaled(rect(current_), factor));
    settle();
}

void SignatureModel::remove() {
    if (!isRow(current_)) return;
    beginRemoveRows({}, current_, current_);
    placements_.erase(placements_.begin() + current_);
    endRemoveRows();
    current_ = -1;
    settle();
    emit changed();
}

bool SignatureModel::isSigned(int page) const {
    return std::ranges::find(placements_, page, &SignaturePlacement::page) != placements_.end();
}

}  // namespace tamble
