#include <TambleCore/PDF/Structure/PageLabels.h>

#include <qpdf/QPDFPageLabelDocumentHelper.hh>

namespace tamble::pdf {

bool hasLabels(const Document& document) {
    return QPDFPageLabelDocumentHelper(document.qpdf()).hasPageLabels();
}

QPDFObjectHandle numberLabel(int number) {
    auto label = QPDFObjectHandle::newDictionary();
    label.replaceKey("/S", QPDFObjectHandle::newName("/D"));
    label.replaceKey("/St", QPDFObjectHandle::newInteger(number));
    return label;
}

void appendLabels(const Document& document, std::span<const int> pages, int newStart, PageLabels& labels) {
    QPDFPageLabelDocumentHelper helper(document.qpdf());
    const bool areNamed = helper.hasPageLabels();
    // Run by run: within one, a label goes on counting by itself.
    for (std::size_t first = 0; first < pages.size();) {
        std::size_t end = first + 1;
        while (end < pages.size() && pages[end] == pages[end - 1] + 1) ++end;
        const int start = newStart + static_cast<int>(first);
        if (areNamed) {
            helper.getLabelsForPageRange(pages[first], pages[end - 1], start, labels);
        } else {
            labels.push_back(QPDFObjectHandle::newInteger(start));
            labels.push_back(numberLabel(pages[first] + 1));
        }
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
