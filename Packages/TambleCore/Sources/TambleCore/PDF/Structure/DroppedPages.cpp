#include <TambleCore/PDF/Structure/Bookmarks.h>
#include <TambleCore/PDF/Structure/DroppedPages.h>

namespace tamble::pdf {
namespace {

ObjectSet annotationsOf(const std::vector<QPDFObjectHandle>& pages) {
    ObjectSet found;
    for (auto page : pages) {
        auto annotations = page.getKey("/Annots");
        if (!annotations.isArray()) continue;
        for (const auto& annotation : annotations.getArrayAsVector()) found.insert(annotation);
    }
    return found;
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
    dropFields(document, annotationsOf(pages));
    // Articles run from page to page.
    document.root().removeKey("/Threads");
    for (auto page : document.pages()) page.removeKey("/B");
    for (const auto& page : pages)
        document.qpdf().replaceObject(page.getObjGen(), QPDFObjectHandle::newNull());
}

}  // namespace tamble::pdf
