#include <TambleCore/PDF/Structure/Assembly/AssemblyPart.h>

#include <algorithm>
#include <utility>

namespace tamble::pdf {
namespace {

/// For the parents of the pages, the bookmarks and the tags, two neighbours, and a table of tags.
constexpr int standInCount = 6;

int firstFreeNumber(const Document& document) {
    int highest = 0;
    const auto places = document.qpdf().getXRefTable();
    if (!places.empty()) highest = places.rbegin()->first.getObj();
    // Pages that were no objects of their own have become some.
    for (const auto& page : document.pages()) highest = std::max(highest, page.getObjectID());
    return highest + 1;
}

}  // namespace

AssemblyPart::AssemblyPart(Document document, std::string title)
    : document_(std::move(document)),
      title_(std::move(title)),
      destinations_(document_),
      numberCount_(firstFreeNumber(document_)),
      pages_(indirect(document_.root(), "/Pages")),
      bookmark_(indirect(document_.root(), "/Outlines")) {
    pages_.replaceKey("/Count", QPDFObjectHandle::newInteger(document_.pageCount()));
    // Not null: a key with nothing is no key.
    for (int i = 0; i < standInCount; ++i) standIns_.push_back(newObject(QPDFObjectHandle::newDictionary()));
}

/// The library's own way to make an object reads the whole document first.
QPDFObjectHandle AssemblyPart::newObject(QPDFObjectHandle object) {
    const QPDFObjGen number(numberCount_++, 0);
    document_.qpdf().replaceObject(number, object);
    return document_.qpdf().getObject(number);
}

/// The dictionary under the key, as an object of its own.
QPDFObjectHandle AssemblyPart::indirect(QPDFObjectHandle parent, const std::string& key) {
    auto object = parent.getKey(key);
    if (object.isIndirect() && object.isDictionary()) return object;
    auto made = newObject(object.isDictionary() ? object : QPDFObjectHandle::newDictionary());
    parent.replaceKey(key, made);
    return made;
}

QPDFObjectHandle AssemblyPart::reference(int number) {
    auto standIn = standIns_.back();
    standIns_.pop_back();
    numbers_.standIns.emplace(standIn.getObjectID(), number);
    return standIn;
}

QPDFObjectHandle AssemblyPart::keep(QPDFObjectHandle object) {
    auto kept = standIns_.back();
    standIns_.pop_back();
    document_.qpdf().replaceObject(kept.getObjGen(), object);
    return document_.qpdf().getObject(kept.getObjGen());
}

void AssemblyPart::hangInto(int pagesNumber, int bookmarksNumber, int bookmarkNumber) {
    numbers_.given.emplace(bookmark_.getObjectID(), bookmarkNumber);
    pages_.replaceKey("/Parent", reference(pagesNumber));
    bookmark_.removeKey("/Type");
    bookmark_.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(title_));
    bookmark_.replaceKey("/Parent", reference(bookmarksNumber));
    auto place = QPDFObjectHandle::newArray();
    place.appendItem(document_.pages().front());
    place.appendItem(QPDFObjectHandle::newName("/Fit"));
    bookmark_.replaceKey("/Dest", place);
    // Closed: the number of those that it would show, negative.
    auto count = bookmark_.getKey("/Count");
    const long long shown = count.isInteger() ? std::abs(count.getIntValue()) : 1;
    if (bookmark_.hasKey("/First"))
        bookmark_.replaceKey("/Count", QPDFObjectHandle::newInteger(-std::max(shown, 1LL)));
}

void AssemblyPart::setNeighbours(std::optional<int> previous, std::optional<int> next) {
    if (previous) bookmark_.replaceKey("/Prev", reference(*previous));
    if (next) bookmark_.replaceKey("/Next", reference(*next));
}

CarriedObjects AssemblyPart::objects(const std::stop_token& stop) const {
    std::vector<QPDFObjectHandle> from{pages_, bookmark_};
    from.insert(from.end(), included_.begin(), included_.end());
    return CarriedObjects::reachable(document_, from, numbers_, stop);
}

}  // namespace tamble::pdf
