#include <Tamble/Desktop/Models/SearchModel.h>
#include <Tamble/Desktop/Support/Texts.h>

namespace tamble {

void SearchModel::setQuery(const QString& query) {
    query_ = query;
    if (!search_) search_.emplace([](std::string_view text) { return texts::engine(text).toStdString(); });
    std::vector<ToolListModel::Entry> entries;
    const auto found = query.trimmed().isEmpty() ? popular_ : search_->find(query.toStdString());
    for (const ToolInfo* tool : found) entries.push_back({tool});
    tools_.setEntries(std::move(entries));
    emit changed();
}

}  // namespace tamble
