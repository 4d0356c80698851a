#include <TambleCore/PDF/Structure/DroppedPages.h>

#include <optional>

namespace tamble::pdf {
namespace {

/// Walks the structure tree and empties the elements of which nothing is left.
class TagPruning {
  public:
    TagPruning(QPDF& qpdf, const ObjectSet& pages) : qpdf_(qpdf), pages_(pages) {}

    void prune(QPDFObjectHandle root) { keepKids(root, QPDFObjectHandle::newNull(), 0); }

  private:
    static constexpr int deepest = 250;

    /// Whether anything is left below the element; `page` is the one that its content is on by default.
    bool keepKids(QPDFObjectHandle element, QPDFObjectHandle page, int depth) {
        if (element.getKey("/Pg").isDictionary()) page = element.getKey("/Pg");
        auto kids = element.getKey("/K");
        if (kids.isNull() || depth > deepest) return !pages_.contains(page);
        if (!kids.isArray()) return keep(kids, page, depth);
        auto left = QPDFObjectHandle::newArray();
        bool anyGone = false;
        for (auto& kid : kids.getArrayAsVector()) {
            if (keep(kid, page, depth)) {
                left.appendItem(kid);
            } else {
                anyGone = true;
            }
        }
        if (anyGone) element.replaceKey("/K", left);
        return left.getArrayNItems() > 0;
    }

    bool keep(QPDFObjectHandle kid, QPDFObjectHandle page, int depth) {
        if (kid.isInteger()) return !pages_.contains(page);
        if (!kid.isDictionary()) return false;
        auto type = kid.getKey("/Type");
        if (type.isNameAndEquals("/MCR") || type.isNameAndEquals("/OBJR")) {
            return !pages_.contains(kid.getKey("/Pg").isDictionary() ? kid.getKey("/Pg") : page);
        }
        if (!seen_.insert(kid)) return true;
        if (keepKids(kid, page, depth + 1)) {
            if (pages_.contains(kid.getKey("/Pg"))) kid.removeKey("/Pg");
            return true;
        }
        // What else refers to it, as the tree of parents does, finds nothing.
        if (kid.isIndirect()) qpdf_.replaceObject(kid.getObjGen(), QPDFObjectHandle::newNull());
        return false;
    }

    QPDF& qpdf_;
    const ObjectSet& pages_;
    ObjectSet seen_;
};

}  // namespace

void dropTags(const Document& document, const ObjectSet& pages) {
    auto root = document.root().getKey("/StructTreeRoot");
    if (root.isDictionary()) TagPruning(document.qpdf(), pages).prune(root);
}

}  // namespace tamble::pdf
