#include <TambleCore/PDF/Structure/PageLabels.h>
#include <TambleCore/PDF/Structure/Pieces/Piece.h>
#include <TambleCore/PDF/Structure/Pieces/PieceMaker.h>

#include <algorithm>

#include <qpdf/QPDFPageDocumentHelper.hh>

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
      hasLabels_(hasLabels(source)),
      shared_(pagesWithOwnAttributes(source)) {
    // Names of places are the whole document's; a piece has only its own pages.
    makePlacesExplicit(source, destinations_, Naming::any);
    detachPages();
}

void PieceMaker::detachPages() {
    parent_ = source_.qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
    for (auto page : source_.pages()) {
        page.replaceKey("/Parent", parent_);
        // Neither is any use without the rest of the document.
        page.removeKey("/B");
        page.removeKey("/StructParents");
        numbers_.nothing.insert(page.getObjectID());
    }
}

/// For good: a page is in one piece only.
void PieceMaker::dropLinksOut(const std::vector<QPDFObjectHandle>& pages) {
    for (const auto& page : pages) {
        forEachLink(page, [this](QPDFObjectHandle link) {
            if (!leadsInside(link)) return;
            auto place = destinations_.placeOf(link);
            if (!place || numbers_.nothing.contains(place->getArrayItem(0).getObjectID()))
                setPlace(link, std::nullopt);
        });
    }
}

void PieceMaker::write(std::span<const int> pages, const std::filesystem::path& destination,
                       const std::stop_token& stop) {
    std::vector<QPDFObjectHandle> own;
    for (const int index : pages) {
        own.push_back(source_.pages().at(static_cast<std::size_t>(index)));
        shared_.separate(own.back());
        numbers_.nothing.erase(own.back().getObjectID());
    }
    dropLinksOut(own);
    FileWriter writer(destination, std::max<std::string>("1.7", source_.qpdf().getPDFVersion()));
    // The source's objects keep their numbers.
    writer.reserve(static_cast<int>(source_.qpdf().getObjectCount()));
    numbers_.standIns.clear();
    Piece piece(source_, numbers_, writer);
    piece.addPages(own, parent_);
    piece.addFields(own);
    piece.addBookmarks(bookmarks_);
    if (hasLabels_) piece.addLabels(pages);
    piece.addProperties();
    piece.finish(stop);
    for (const auto& page : own) numbers_.nothing.insert(page.getObjectID());
}

}  // namespace tamble::pdf
