#include <TambleCore/PDF/Structure/DroppedPages.h>

namespace tamble::pdf {
namespace {

class FieldPruning {
  public:
    FieldPruning(QPDF& qpdf, const ObjectSet& widgets) : qpdf_(qpdf), widgets_(widgets) {}

    /// The fields of the list that are left.
    QPDFObjectHandle left(QPDFObjectHandle fields, int depth) {
        auto left = QPDFObjectHandle::newArray();
        for (auto& field : fields.getArrayAsVector()) {
            if (stays(field, depth)) {
                left.appendItem(field);
            } else if (field.isIndirect()) {
                // The order of calculation and buttons name fields, too.
                qpdf_.replaceObject(field.getObjGen(), QPDFObjectHandle::newNull());
            }
        }
        return left;
    }

  private:
    static constexpr int deepest = 100;

    bool stays(QPDFObjectHandle field, int depth) {
        if (widgets_.contains(field)) return false;
        if (!field.isDictionary() || !seen_.insert(field) || depth > deepest) return true;
        auto kids = field.getKey("/Kids");
        if (!kids.isArray() || kids.getArrayNItems() == 0) return true;
        auto leftKids = left(kids, depth + 1);
        if (leftKids.getArrayNItems() == 0) return false;
        field.replaceKey("/Kids", leftKids);
        return true;
    }

    QPDF& qpdf_;
    const ObjectSet& widgets_;
    ObjectSet seen_;
};

}  // namespace

void dropFields(const Document& document, const ObjectSet& widgets) {
    auto form = document.root().getKey("/AcroForm");
    if (widgets.empty() || !form.isDictionary() || !form.getKey("/Fields").isArray()) return;
    auto left = FieldPruning(document.qpdf(), widgets).left(form.getKey("/Fields"), 0);
    if (left.getArrayNItems() == 0) {
        document.root().removeKey("/AcroForm");
        return;
    }
    form.replaceKey("/Fields", left);
    // The other description of the same form would still have them.
    form.removeKey("/XFA");
    auto order = form.getKey("/CO");
    if (!order.isArray()) return;
    auto orderLeft = QPDFObjectHandle::newArray();
    for (auto& field : order.getArrayAsVector()) {
        if (field.isDictionary()) orderLeft.appendItem(field);
    }
    form.replaceKey("/CO", orderLeft);
}

}  // namespace tamble::pdf
