#include <TambleCore/PDF/Structure/Destinations.h>
#include <TambleCore/PDF/Structure/Navigation.h>

namespace tamble::pdf {
namespace {

using Object = QPDFObjectHandle;

/// Goes through what leads to places in a document and leaves what leads to its pages, or elsewhere.
class Places {
  public:
    explicit Places(const Document& document) : destinations_(document) {
        for (const auto& page : document.pages()) pages_.insert(page.getObjGen());
    }

    /// The destination, or nothing where it would keep alive what is no page of the document.
    Object destination(Object place) const {
        if (place.isName() || place.isString())
            place = destinations_.place(place).value_or(Object::newNull());
        if (place.isDictionary()) place = place.getKey("/D");
        if (!place.isArray() || place.getArrayNItems() == 0) return Object::newNull();
        Object target = place.getArrayItem(0);
        if (!target.isInteger() && !pages_.contains(target.getObjGen())) return Object::newNull();
        std::vector<Object> items{target};
        for (int i = 1; i < place.getArrayNItems(); ++i) {
            if (Object item = place.getArrayItem(i); item.isScalar()) items.push_back(item);
        }
        return Object::newArray(items);
    }

    /// The action if it leads somewhere, without those that would follow it.
    Object action(Object action) const {
        static const std::set<std::string> leading{"/GoTo", "/GoToR", "/GoToE", "/URI", "/Named", "/Launch"};
        if (!action.isDictionary() || !action.getKey("/S").isName() ||
            !leading.contains(action.getKey("/S").getName()))
            return Object::newNull();
        Object kept = action.shallowCopy();
        keepKeys(kept, {"/Type", "/S", "/D", "/F", "/NewWindow", "/T", "/URI", "/IsMap", "/N"});
        if (!kept.hasKey("/D")) return kept;
        Object place = destination(kept.getKey("/D"));
        if (place.isNull()) return place;
        kept.replaceKey("/D", place);
        return kept;
    }

    /// Both ways in which an item can lead somewhere.
    void clean(Object item) const {
        replace(item, "/Dest", destination(item.getKey("/Dest")));
        replace(item, "/A", action(item.getKey("/A")));
    }

    static void replace(Object dictionary, const std::string& key, Object value) {
        if (value.isNull()) {
            dictionary.removeKey(key);
        } else {
            dictionary.replaceKey(key, value);
        }
    }

    /// Every name that still leads somewhere.
    std::map<std::string, Object> named() const {
        std::map<std::string, Object> kept;
        for (const auto& [name, place] : destinations_.named()) {
            if (Object found = destination(place); !found.isNull()) kept.emplace(name, found);
        }
        return kept;
    }

  private:
    Destinations destinations_;
    std::set<QPDFObjGen> pages_;
};

void cleanOutlines(Object outlines, const Places& places) {
    keepKeys(outlines, {"/Type", "/First", "/Last", "/Count"});
    std::set<QPDFObjGen> seen;
    std::vector<Object> waiting{outlines.getKey("/First")};
    while (!waiting.empty()) {
        Object item = waiting.back();
        waiting.pop_back();
        if (!item.isDictionary() || (item.isIndirect() && !seen.insert(item.getObjGen()).second)) continue;
        keepKeys(item, {"/Title", "/Parent", "/Prev", "/Next", "/First", "/Last", "/Count", "/Dest", "/A",
                        "/C", "/F"});
        places.clean(item);
        for (const char* next : {"/Next", "/First"}) waiting.push_back(item.getKey(next));
    }
}

/// XMP holds title and dates, but may also show a page.
void dropThumbnails(Object root) {
    constexpr std::size_t largest = 1 << 20;
    constexpr std::string_view start = "<xmp:Thumbnails";
    constexpr std::string_view end = "</xmp:Thumbnails>";
    Object metadata = root.getKey("/Metadata");
    if (!metadata.isStream()) return;
    const auto raw = metadata.getRawStreamData();
    if (raw->getSize() > largest) return root.removeKey("/Metadata");
    const auto data = metadata.getStreamData();
    std::string text(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
    const auto from = text.find(start);
    if (from == std::string::npos) return;
    const auto to = text.find(end, from);
    if (to == std::string::npos) return root.removeKey("/Metadata");
    text.erase(from, to + end.size() - from);
    metadata.replaceStreamData(text, Object::newNull(), Object::newNull());
}

/// Leaves of a page's annotations its links, without a look of their own.
void keepLinks(QPDF& qpdf, Object page, const Places& places) {
    Object links = Object::newArray();
    forEachLink(page, [&](Object annotation) {
        Object link = annotation.shallowCopy();
        keepKeys(link, {"/Type", "/Subtype", "/Rect", "/QuadPoints", "/F", "/H", "/Dest", "/A"});
        places.clean(link);
        if (!link.hasKey("/Dest") && !link.hasKey("/A")) return;
        // A frame is part of what the page shows.
        link.replaceKey("/Border", Object::parse("[0 0 0]"));
        links.appendItem(qpdf.makeIndirectObject(link));
    });
    Places::replace(page, "/Annots", links.getArrayNItems() > 0 ? links : Object::newNull());
}

}  // namespace

void keepKeys(Object dictionary, const std::set<std::string>& kept) {
    if (!dictionary.isDictionary()) return;
    for (const auto& key : dictionary.getKeys()) {
        if (!kept.contains(key)) dictionary.removeKey(key);
    }
}

void keepOnlyNavigation(const Document& document) {
    const Places places(document);
    QPDF& qpdf = document.qpdf();
    Object root = document.root();
    keepKeys(qpdf.getTrailer(), {"/Root", "/Info", "/ID", "/Encrypt", "/Size"});
    keepKeys(root, {"/Type", "/Version", "/Extensions", "/Pages", "/PageLabels", "/Names", "/Dests",
                    "/ViewerPreferences", "/PageLayout", "/PageMode", "/Outlines", "/OpenAction", "/URI",
                    "/Lang", "/Metadata", "/Collection", "/AF"});
    if (Object outlines = root.getKey("/Outlines"); outlines.isDictionary()) cleanOutlines(outlines, places);
    keepKeys(root.getKey("/Names"), {"/EmbeddedFiles"});
    setNamedDestinations(document, places.named());
    Object opening = root.getKey("/OpenAction");
    Places::replace(root, "/OpenAction",
                    opening.isDictionary() ? places.action(opening) : places.destination(opening));
    dropThumbnails(root);
    for (const Object& page : document.pages()) keepLinks(qpdf, page, places);
}

}  // namespace tamble::pdf
