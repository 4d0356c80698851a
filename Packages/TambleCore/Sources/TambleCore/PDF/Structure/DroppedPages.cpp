#include <TambleCore/PDF/Structure/Bookmarks.h>
#include <TambleCore/PDF/Structure/DroppedPages.h>

namespace tamble::pdf {
namespace {

void forEachAnnotation(const std::vector<QPDFObjectHandle>& pages,
                       const std::function<void(const QPDFObjectHandle&)>& visit) {
    for (auto page : pages) {
        auto annotations = page.getKey("/Annots");
        if (!annotations.isArray()) continue;
        for (const auto& annotation : annotations.getArrayAsVector()) visit(annotation);
    }
}

/// The annotations of the pages that are on none of those that stay.
ObjectSet annotationsLost(const Document& document, const std::vector<QPDFObjectHandle>& pages) {
    ObjectSet left;
    forEachAnnotation(document.pages(), [&](const QPDFObjectHandle& annotation) { left.insert(annotation); });
    ObjectSet lost;
    forEachAnnotation(pages, [&](const QPDFObjectHandle& annotation) {
        if (!left.contains(annotation)) lost.insert(annotation);
    });
    return lost;
}

/// Whatever refers to it finds nothing.
void erase(const Document& document, const QPDFObjectHandle& object) {
    if (object.isIndirect()) document.qpdf().replaceObject(object.getObjGen(), QPDFObjectHandle::newNull());
}

/// Bookmarks, links, names and the page to open first.
void dropPlaces(const Document& document, const ObjectSet& dropped) {
    const Destinations destinations(document);
    const auto isLeft = [&](QPDFObjectHandle page) { return !dropped.contains(page); };
    const auto leadsAway = [&](QPDFObjectHandle link) {
        auto place = destinations.placeOf(link);
        return place && !isLeft(place->getArrayItem(0));
    };
    setBookmarks(document, bookmarksLeft(bookmarks(document, destinations), isLeft));
    for (const auto& page : document.pages()) {
        forEachLink(page, [&](QPDFObjectHandle link) {
            if (leadsAway(link)) setPlace(link, std::nullopt);
        });
    }
    auto named = destinations.named();
    if (std::erase_if(named, [&](const auto& entry) {
            auto place = entry.second;
            return !isLeft(place.getArrayItem(0));
        }) > 0) {
        setNamedDestinations(document, named);
    }
    if (auto older = document.root().getKey("/Dests"); older.isDictionary()) {
        for (const auto& name : older.getKeys()) {
            auto place = destinations.place(QPDFObjectHandle::newName(name));
            if (place && !isLeft(place->getArrayItem(0))) older.removeKey(name);
        }
    }
    auto opening = document.root().getKey("/OpenAction");
    auto place = destinations.place(opening);
    if (opening.isDictionary() && !place) place = destinations.place(opening.getKey("/D"));
    if (place && !isLeft(place->getArrayItem(0))) document.root().removeKey("/OpenAction");
}

}  // namespace

void dropPages(const Document& document, const std::vector<QPDFObjectHandle>& pages) {
    if (pages.empty()) return;
    ObjectSet dropped;
    for (const auto& page : pages) dropped.insert(page);
    dropPlaces(document, dropped);
    dropTags(document, dropped);
    const ObjectSet lost = annotationsLost(document, pages);
    dropFields(document, lost);
    // Articles run from page to page.
    document.root().removeKey("/Threads");
    for (auto page : document.pages()) page.removeKey("/B");
    forEachAnnotation(pages, [&](const QPDFObjectHandle& annotation) {
        if (lost.contains(annotation)) erase(document, annotation);
    });
    for (const auto& page : pages) erase(document, page);
}

}  // namespace tamble::pdf
