#pragma once

#include <Tamble/Desktop/Models/ToolListModel.h>
#include <Tamble/Model/QuickSearch.h>

namespace tamble {

/// Finds tools while people type.
class SearchModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY changed)
    Q_PROPERTY(tamble::ToolListModel* tools READ tools CONSTANT)

  public:
    using QObject::QObject;

    QString query() const { return query_; }
    /// An empty one finds the tools that are used most.
    void setQuery(const QString& query);
    void setPopular(std::vector<const ToolInfo*> popular) { popular_ = std::move(popular); }
    ToolListModel* tools() { return &tools_; }

  signals:
    void changed();

  private:
    /// Made when first needed.
    std::optional<QuickSearch> search_;
    QString query_;
    std::vector<const ToolInfo*> popular_;
    ToolListModel tools_;
};

}  // namespace tamble
