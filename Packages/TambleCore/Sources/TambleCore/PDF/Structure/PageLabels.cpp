#include <TambleCore/PDF/Structure/PageLabels.h>

#include <qpdf/QPDFPageLabelDocumentHelper.hh>

namespace tamble::pdf {

bool hasLabels(const Document& document) {
    return QPDFPageLabelDocumentHelper(document.qpdf()).hasPageLabels();
}

void appendLabels(const Document& document, std::span<const int> pages, int newStart, PageLabels& labels) {
    QPDFPageLabelDocumentHelper helper(document.qpdf());
    // Run by run: the library continues a run by itself.
    for (std::size_t first = 0; first < pages.size();) {
        std::size_t end = first + 1;
        while (end < pages.size() && pages[end] == pages[end - 1] + 1) ++end;
        helper.getLabelsForPageRange(pages[first], pages[end - 1], newStart + static_cast<int>(first),
                                     labels);
        first = end;
    }
}

PageLabels labelsInOrder(const Document& document, std::span<const PageEdit> edits) {
    PageLabels labels;
    if (!hasLabels(document)) return labels;
    std::vector<int> pages;
    for (const PageEdit& edit : edits) pages.push_back(edit.source);
    appendLabels(document, pages, 0, labels);
    return labels;
}

void setLabels(const Document& document, const PageLabels& labels) {
    auto root = document.root();
    root.removeKey("/PageLabels");
    if (labels.empty()) return;
    auto table = QPDFObjectHandle::newDictionary();
    table.replaceKey("/Nums", QPDFObjectHandle::newArray(labels));
    root.replaceKey("/PageLabels", table);
}

}  // namespace tamble::pdf
