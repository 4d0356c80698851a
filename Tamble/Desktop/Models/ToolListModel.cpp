#include <Tamble/Desktop/Models/ToolListModel.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <TambleCore/Support/Json/Described.h>

namespace tamble {
namespace {

QString text(std::string_view value) {
    return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
}

}  // namespace

void ToolListModel::setEntries(std::vector<Entry> entries) {
    beginResetModel();
    entries_ = std::move(entries);
    endResetModel();
    emit countChanged();
}

int ToolListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ToolListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const auto& [tool, filesText] = entries_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case toolID:
            return text(tool->id);
        case title:
            return texts::engine(tool->title);
        case subtitle:
            return texts::engine(tool->subtitle);
        case symbol:
            return text(tool->symbol);
        case category:
            return categoryName(tool->category);
        case files:
            return filesText;
        case available:
            return ToolCatalog::definition(tool->id) != nullptr;
        default:
            return {};
    }
}

QHash<int, QByteArray> ToolListModel::roleNames() const {
    return {{toolID, "toolID"},     {title, "title"}, {subtitle, "subtitle"},  {symbol, "symbol"},
            {category, "category"}, {files, "files"}, {available, "available"}};
}

QString ToolListModel::toolAt(int row) const {
    const bool exists = row >= 0 && row < count();
    return exists ? text(entries_[static_cast<std::size_t>(row)].tool->id) : QString();
}

QString categoryName(ToolCategory category) {
    return text(caseName(category));
}

}  // namespace tamble
