#include <TambleCore/PDF/Structure/Copying.h>
#include <TambleCore/PDF/Structure/PageLabels.h>
#include <TambleCore/PDF/Structure/Pieces.h>

#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

namespace tamble::pdf {
namespace {

/// The pages, none of which inherits anything any more.
const std::vector<QPDFObjectHandle>& pagesWithOwnAttributes(const Document& document) {
    QPDFPageDocumentHelper(document.qpdf()).pushInheritedAttributesToPage();
    return document.pages();
}

}  // namespace

PieceMaker::PieceMaker(const Document& source)
    : source_(source),
      destinations_(source),
      bookmarks_(bookmarks(source, destinations_)),
      forms_(source.qpdf()),
      hasForms_(forms_.hasAcroForm()),
      hasLabels_(hasLabels(source)),
      shared_(pagesWithOwnAttributes(source)) {
    makeLinksExplicit();
    for (auto page : source.pages()) {
        // Neither is any use without the rest of the document.
        page.removeKey("/B");
        page.removeKey("/StructParents");
    }
}

/// Names of places are the whole document's; a piece has only its own pages.
void PieceMaker::makeLinksExplicit() {
    if (destinations_.named().empty()) return;
    for (const auto& page : source_.pages()) {
        forEachLink(page, [this](QPDFObjectHandle link) {
            if (leadsInside(link)) setPlace(link, destinations_.placeOf(link));
        });
    }
}

Document PieceMaker::piece(std::span<const int> pages) {
    Document piece = Document::empty();
    CopiedPages copies;
    std::vector<QPDFObjectHandle> sources;
    for (const int index : pages) {
        auto page = source_.pages().at(static_cast<std::size_t>(index));
        shared_.separate(page);
        piece.qpdf().addPage(page, false);
        sources.push_back(page);
    }
    const auto& copied = piece.pages();
    for (std::size_t i = 0; i < sources.size(); ++i) copies.add(sources[i], copied[i]);
    if (hasForms_) {
        QPDFAcroFormDocumentHelper forms(piece.qpdf());
        for (std::size_t i = 0; i < sources.size(); ++i)
            forms.fixCopiedAnnotations(copied[i], sources[i], forms_);
    }
    for (const auto& page : copied) {
        forEachLink(page, [](QPDFObjectHandle link) {
            if (!leadsInside(link)) return;
            auto place = link.hasKey("/Dest") ? link.getKey("/Dest") : link.getKey("/A").getKey("/D");
            const bool leadsNowhere = !place.isArray() || !place.getArrayItem(0).isPageObject();
            if (leadsNowhere) setPlace(link, std::nullopt);
        });
    }
    setBookmarks(piece, copiedBookmarks(bookmarks_, copies, piece));
    if (hasLabels_) {
        PageLabels labels;
        appendLabels(source_, pages, 0, labels);
        setLabels(piece, labels);
    }
    copyDocumentProperties(source_, piece);
    return piece;
}

}  // namespace tamble::pdf
