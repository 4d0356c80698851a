#include <TambleCore/PDF/Structure/Copying.h>

namespace tamble::pdf {

std::optional<QPDFObjectHandle> CopiedPages::place(QPDFObjectHandle place) const {
    const auto found = copies_.find(place.getArrayItem(0).getObjGen());
    if (found == copies_.end()) return std::nullopt;
    // Behind the page stand names and numbers only.
    auto copy = QPDFObjectHandle::newArray();
    copy.appendItem(found->second);
    for (int i = 1; i < place.getArrayNItems(); ++i) {
        auto part = place.getArrayItem(i);
        copy.appendItem(part.isName() || part.isNumber() ? part.unsafeShallowCopy()
                                                         : QPDFObjectHandle::newNull());
    }
    return copy;
}

std::vector<Bookmark> copiedBookmarks(const std::vector<Bookmark>& bookmarks, const CopiedPages& pages,
                                      const Document& target) {
    std::vector<Bookmark> copies;
    const auto asTargets = [&](const std::optional<QPDFObjectHandle>& object) {
        return object ? std::optional(copied(*object, target)) : std::nullopt;
    };
    for (const Bookmark& bookmark : bookmarks) {
        Bookmark copy{.title = bookmark.title,
                      .place = bookmark.place ? pages.place(*bookmark.place) : std::nullopt,
                      .isOpen = bookmark.isOpen,
                      .children = copiedBookmarks(bookmark.children, pages, target)};
        const bool leadsOut = !bookmark.place && bookmark.action;
        if (!copy.place && !leadsOut && copy.children.empty()) continue;
        copy.action = asTargets(bookmark.action);
        copy.colour = asTargets(bookmark.colour);
        copy.style = asTargets(bookmark.style);
        copies.push_back(std::move(copy));
    }
    return copies;
}

QPDFObjectHandle copied(QPDFObjectHandle object, const Document& target) {
    if (object.isIndirect()) return target.qpdf().copyForeignObject(object);
    if (object.isArray()) {
        auto copy = QPDFObjectHandle::newArray();
        for (const auto& item : object.getArrayAsVector()) copy.appendItem(copied(item, target));
        return copy;
    }
    if (object.isDictionary()) {
        auto copy = QPDFObjectHandle::newDictionary();
        for (const auto& [key, value] : object.getDictAsMap()) copy.replaceKey(key, copied(value, target));
        return copy;
    }
    return object.unsafeShallowCopy();
}

void copyDocumentProperties(const Document& source, const Document& target) {
    auto information = source.qpdf().getTrailer().getKey("/Info");
    if (information.isDictionary()) {
        target.qpdf().getTrailer().replaceKey("/Info",
                                              target.qpdf().makeIndirectObject(copied(information, target)));
    }
    auto from = source.root();
    auto to = target.root();
    for (const char* key : {"/Metadata", "/Lang", "/ViewerPreferences", "/PageLayout", "/PageMode",
                            "/OCProperties", "/OutputIntents"}) {
        if (from.hasKey(key)) to.replaceKey(key, copied(from.getKey(key), target));
    }
}

}  // namespace tamble::pdf
