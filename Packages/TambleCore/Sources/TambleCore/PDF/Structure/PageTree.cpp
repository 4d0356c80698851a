#include <TambleCore/PDF/PageList.h>
#include <TambleCore/PDF/Structure/Bookmarks.h>
#include <TambleCore/PDF/Structure/DroppedPages.h>
#include <TambleCore/PDF/Structure/PageLabels.h>
#include <TambleCore/PDF/Structure/PageTree.h>
#include <TambleCore/PDF/Structure/SharedResources.h>

#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

namespace tamble::pdf {
namespace {

/// The pages as the edits ask for them, not yet in the tree.
class NewPages {
  public:
    explicit NewPages(const Document& document) : document_(document), forms_(document.qpdf()) {}

    QPDFObjectHandle page(QPDFObjectHandle source, int rotation) {
        QPDFObjectHandle page = taken_.insert(source) ? source : copyOf(source);
        if (rotation % 360 != 0) QPDFPageObjectHelper(page).rotatePage(rotation % 360, true);
        return page;
    }

    bool areTaken(QPDFObjectHandle page) const { return taken_.contains(page); }

  private:
    QPDFObjectHandle copyOf(QPDFObjectHandle source) {
        auto copy = document_.qpdf().makeIndirectObject(source.shallowCopy());
        // The tags of the page are those of the first one.
        copy.removeKey("/StructParents");
        forms_.fixCopiedAnnotations(copy, source, forms_);
        return copy;
    }

    const Document& document_;
    QPDFAcroFormDocumentHelper forms_;
    ObjectSet taken_;
};

/// A tree of one level: its order is the list's.
void replaceTree(const Document& document, const std::vector<QPDFObjectHandle>& pages) {
    auto tree = document.qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
    tree.replaceKey("/Type", QPDFObjectHandle::newName("/Pages"));
    tree.replaceKey("/Kids", QPDFObjectHandle::newArray(pages));
    tree.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(pages.size())));
    for (auto page : pages) page.replaceKey("/Parent", tree);
    document.root().replaceKey("/Pages", tree);
    document.qpdf().updateAllPagesCache();
}

}  // namespace

void setPages(const Document& document, std::span<const PageEdit> edits) {
    requireFitting(edits, document.pageCount());
    QPDFPageDocumentHelper(document.qpdf()).pushInheritedAttributesToPage();
    const std::vector<QPDFObjectHandle> before = document.pages();
    makePlacesExplicit(document, Destinations(document), Naming::older);
    SharedResources shared(before);
    const auto labels = labelsInOrder(document, edits);
    NewPages wanted(document);
    std::vector<QPDFObjectHandle> pages;
    std::vector<bool> stays(before.size());
    for (const PageEdit& edit : edits) {
        const auto index = static_cast<std::size_t>(edit.source);
        pages.push_back(wanted.page(before[index], edit.rotation));
        stays[index] = true;
    }
    std::vector<QPDFObjectHandle> dropped;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (!stays[i]) dropped.push_back(before[i]);
    }
    replaceTree(document, pages);
    setLabels(document, labels);
    if (dropped.empty()) return;
    dropPages(document, dropped);
    for (const auto& page : pages) shared.separate(page);
}

}  // namespace tamble::pdf
