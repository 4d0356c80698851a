#include <TambleCore/PDF/Structure/Destinations.h>

#include <qpdf/QPDFNameTreeObjectHelper.hh>

namespace tamble::pdf {
namespace {

/// The array of a destination that names a page by reference; empty for anything else.
std::optional<QPDFObjectHandle> explicitPlace(QPDFObjectHandle destination) {
    if (destination.isDictionary()) destination = destination.getKey("/D");
    if (!destination.isArray() || destination.getArrayNItems() == 0) return std::nullopt;
    if (!destination.getArrayItem(0).isPageObject()) return std::nullopt;
    return destination;
}

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
    // Readers look names up by their stored bytes, which sort otherwise than the same texts in UTF-8.
    std::map<std::string, QPDFObjectHandle> sorted;
    for (const auto& [name, object] : named) {
        auto key = QPDFObjectHandle::newUnicodeString(name);
        sorted.emplace(key.getStringValue(), object);
    }
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
    for (const auto& [key, object] : sorted) {
        entries.appendItem(QPDFObjectHandle::newString(key));
        entries.appendItem(object);
        if (entries.getArrayNItems() == 2 * leafSize) closeLeaf();
    }
    closeLeaf();
    auto tree = QPDFObjectHandle::newDictionary();
    tree.replaceKey("/Kids", leaves);
    return qpdf.makeIndirectObject(tree);
}

}  // namespace

Destinations::Destinations(const Document& document) {
    const auto add = [this](const std::string& name, QPDFObjectHandle destination) {
        if (const auto found = explicitPlace(destination)) named_.emplace(name, *found);
    };
    auto table = document.root().getKey("/Dests");
    if (table.isDictionary()) {
        for (auto& [name, destination] : table.getDictAsMap()) add(name.substr(1), destination);
    }
    auto names = document.root().getKey("/Names");
    if (!names.isDictionary() || !names.getKey("/Dests").isDictionary()) return;
    for (auto& [name, destination] :
         QPDFNameTreeObjectHelper(names.getKey("/Dests"), document.qpdf()).getAsMap())
        add(name, destination);
}

std::optional<QPDFObjectHandle> Destinations::place(QPDFObjectHandle destination) const {
    if (!destination.isName() && !destination.isString()) return explicitPlace(destination);
    const auto found =
        named_.find(destination.isName() ? destination.getName().substr(1) : destination.getUTF8Value());
    if (found == named_.end()) return std::nullopt;
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
    document.root().removeKey("/Dests");
    setNames(document, "/Dests", named);
}

}  // namespace tamble::pdf
