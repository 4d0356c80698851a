#include <TambleCore/PDF/Structure/Bookmarks.h>
#include <TambleCore/PDF/Structure/ObjectSet.h>

#include <utility>

namespace tamble::pdf {
namespace {

QPDFObjectHandle goToAction(QPDFObjectHandle link) {
    auto action = link.getKey("/A");
    const bool goesTo = action.isDictionary() && action.getKey("/S").isNameAndEquals("/GoTo");
    return goesTo ? action : QPDFObjectHandle::newNull();
}

QPDFObjectHandle limits(QPDFObjectHandle first, QPDFObjectHandle last) {
    auto both = QPDFObjectHandle::newArray();
    both.appendItem(first);
    both.appendItem(last);
    return both;
}

/// A name tree of two levels (ISO 32000-1, 7.9.6). The library's own inserts name by name, which takes a
/// hundred times as long.
QPDFObjectHandle nameTree(QPDF& qpdf, const std::map<std::string, QPDFObjectHandle>& named) {
    constexpr int leafSize = 64;
    auto leaves = QPDFObjectHandle::newArray();
    auto entries = QPDFObjectHandle::newArray();
    const auto closeLeaf = [&] {
        if (entries.getArrayNItems() == 0) return;
        auto leaf = QPDFObjectHandle::newDictionary();
        leaf.replaceKey("/Limits",
                        limits(entries.getArrayItem(0), entries.getArrayItem(entries.getArrayNItems() - 2)));
        leaf.replaceKey("/Names", entries);
        leaves.appendItem(qpdf.makeIndirectObject(leaf));
        entries = QPDFObjectHandle::newArray();
    };
    for (const auto& [name, object] : named) {
        entries.appendItem(QPDFObjectHandle::newString(name));
        entries.appendItem(object);
        if (entries.getArrayNItems() == 2 * leafSize) closeLeaf();
    }
    closeLeaf();
    auto tree = QPDFObjectHandle::newDictionary();
    tree.replaceKey("/Kids", leaves);
    return qpdf.makeIndirectObject(tree);
}

/// Whether nothing but the document's older table or the order of its pages tells where it leads.
bool isOlder(QPDFObjectHandle destination) {
    if (destination.isDictionary()) destination = destination.getKey("/D");
    return destination.isName() || (destination.isArray() && destination.getArrayNItems() > 0 &&
                                    destination.getArrayItem(0).isInteger());
}

QPDFObjectHandle destinationOf(QPDFObjectHandle link) {
    return link.hasKey("/Dest") ? link.getKey("/Dest") : goToAction(link).getKey("/D");
}

}  // namespace

Destinations::Destinations(const Document& document) : pages_(document.pages()) {
    auto table = document.root().getKey("/Dests");
    if (table.isDictionary()) {
        for (auto& [name, destination] : table.getDictAsMap()) {
            if (const auto found = explicitPlace(destination)) olderNamed_.emplace(name, *found);
        }
    }
    auto names = document.root().getKey("/Names");
    if (names.isDictionary()) addNames(names.getKey("/Dests"));
}

/// The library's own reading of such trees compares texts, of which different bytes can be the same.
void Destinations::addNames(QPDFObjectHandle tree) {
    ObjectSet seen;
    std::vector<QPDFObjectHandle> waiting{tree};
    while (!waiting.empty()) {
        auto node = waiting.back();
        waiting.pop_back();
        if (!node.isDictionary() || !seen.insert(node)) continue;
        if (auto kids = node.getKey("/Kids"); kids.isArray()) {
            for (const auto& kid : kids.getArrayAsVector()) waiting.push_back(kid);
        }
        auto names = node.getKey("/Names");
        if (!names.isArray()) continue;
        const auto entries = names.getArrayAsVector();
        for (std::size_t i = 0; i + 1 < entries.size(); i += 2) {
            auto name = entries[i];
            const auto found = explicitPlace(entries[i + 1]);
            if (name.isString() && found) named_.emplace(name.getStringValue(), *found);
        }
    }
}

std::optional<QPDFObjectHandle> Destinations::explicitPlace(QPDFObjectHandle destination) const {
    if (destination.isDictionary()) destination = destination.getKey("/D");
    if (!destination.isArray() || destination.getArrayNItems() == 0) return std::nullopt;
    auto page = destination.getArrayItem(0);
    if (page.isPageObject()) return destination;
    if (!page.isInteger() || page.getIntValue() < 0 || !std::cmp_less(page.getIntValue(), pages_.size()))
        return std::nullopt;
    auto place = destination.shallowCopy();
    place.setArrayItem(0, pages_[static_cast<std::size_t>(page.getIntValue())]);
    return place;
}

std::optional<QPDFObjectHandle> Destinations::place(QPDFObjectHandle destination) const {
    if (!destination.isName() && !destination.isString()) return explicitPlace(destination);
    const auto& names = destination.isName() ? olderNamed_ : named_;
    const auto found =
        names.find(destination.isName() ? destination.getName() : destination.getStringValue());
    if (found == names.end()) return std::nullopt;
    return found->second;
}

std::optional<QPDFObjectHandle> Destinations::placeOf(QPDFObjectHandle link) const {
    if (link.hasKey("/Dest")) return place(link.getKey("/Dest"));
    auto action = goToAction(link);
    return action.isNull() ? std::nullopt : place(action.getKey("/D"));
}

bool leadsInside(QPDFObjectHandle link) {
    return link.hasKey("/Dest") || !goToAction(link).isNull();
}

void setPlace(QPDFObjectHandle link, const std::optional<QPDFObjectHandle>& place) {
    if (!goToAction(link).isNull()) link.removeKey("/A");
    link.removeKey("/Dest");
    if (place) link.replaceKey("/Dest", *place);
}

void makePlacesExplicit(const Document& document, const Destinations& destinations, Naming naming) {
    const auto make = [&](QPDFObjectHandle link) {
        if (leadsInside(link) && (naming == Naming::any || isOlder(destinationOf(link))))
            setPlace(link, destinations.placeOf(link));
    };
    for (const auto& page : document.pages()) forEachLink(page, make);
    forEachBookmark(document, make);
}

void forEachLink(QPDFObjectHandle page, const std::function<void(QPDFObjectHandle)>& visit) {
    auto annotations = page.getKey("/Annots");
    if (!annotations.isArray()) return;
    for (auto& annotation : annotations.getArrayAsVector()) {
        if (annotation.isDictionary() && annotation.getKey("/Subtype").isNameAndEquals("/Link"))
            visit(annotation);
    }
}

void setNames(const Document& document, const std::string& table,
              const std::map<std::string, QPDFObjectHandle>& named) {
    auto root = document.root();
    if (named.empty()) {
        if (root.getKey("/Names").isDictionary()) root.getKey("/Names").removeKey(table);
        return;
    }
    if (!root.getKey("/Names").isDictionary()) root.replaceKey("/Names", QPDFObjectHandle::newDictionary());
    root.getKey("/Names").replaceKey(table, nameTree(document.qpdf(), named));
}

void setNamedDestinations(const Document& document, const std::map<std::string, QPDFObjectHandle>& named) {
    setNames(document, "/Dests", named);
}

}  // namespace tamble::pdf
