#include <TambleCore/PDF/Structure/Bookmarks.h>
#include <TambleCore/PDF/Structure/ObjectSet.h>

namespace tamble::pdf {
namespace {

constexpr int deepest = 64;

class BookmarkReader {
  public:
    explicit BookmarkReader(const Destinations& destinations) : destinations_(destinations) {}

    std::vector<Bookmark> below(QPDFObjectHandle parent, int depth) {
        std::vector<Bookmark> found;
        if (depth > deepest) return found;
        for (auto item = parent.getKey("/First"); isNew(item); item = item.getKey("/Next"))
            found.push_back(bookmark(item, depth));
        return found;
    }

  private:
    bool isNew(QPDFObjectHandle item) {
        return item.isDictionary() && item.isIndirect() && seen_.insert(item);
    }

    Bookmark bookmark(QPDFObjectHandle item, int depth) {
        Bookmark found;
        if (auto title = item.getKey("/Title"); title.isString()) found.title = title.getUTF8Value();
        if (leadsInside(item)) {
            found.place = destinations_.placeOf(item);
            if (found.place) found.pageNumber = found.place->getArrayItem(0).getObjectID();
        } else if (auto action = item.getKey("/A"); action.isDictionary()) {
            found.action = action;
        }
        if (auto colour = item.getKey("/C"); colour.isArray()) found.colour = colour;
        if (auto style = item.getKey("/F"); style.isInteger()) found.style = style;
        auto count = item.getKey("/Count");
        found.isOpen = !count.isInteger() || count.getIntValue() > 0;
        found.children = below(item, depth + 1);
        return found;
    }

    const Destinations& destinations_;
    ObjectSet seen_;
};

class BookmarkWriter {
  public:
    explicit BookmarkWriter(QPDF& qpdf) : qpdf_(qpdf) {}

    /// Answers how many are shown below the parent when it is open.
    int write(const std::vector<Bookmark>& children, QPDFObjectHandle parent) {
        int shown = 0;
        std::optional<QPDFObjectHandle> before;
        for (const Bookmark& child : children) {
            auto item = qpdf_.makeIndirectObject(dictionaryOf(child));
            item.replaceKey("/Parent", parent);
            const int below = write(child.children, item);
            if (below > 0)
                item.replaceKey("/Count", QPDFObjectHandle::newInteger(child.isOpen ? below : -below));
            if (before) {
                item.replaceKey("/Prev", *before);
                before->replaceKey("/Next", item);
            } else {
                parent.replaceKey("/First", item);
            }
            before = item;
            shown += 1 + (child.isOpen ? below : 0);
        }
        if (before) parent.replaceKey("/Last", *before);
        return shown;
    }

  private:
    static QPDFObjectHandle dictionaryOf(const Bookmark& bookmark) {
        auto item = QPDFObjectHandle::newDictionary();
        item.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(bookmark.title));
        if (bookmark.place) item.replaceKey("/Dest", *bookmark.place);
        if (bookmark.action) item.replaceKey("/A", *bookmark.action);
        if (bookmark.colour) item.replaceKey("/C", *bookmark.colour);
        if (bookmark.style) item.replaceKey("/F", *bookmark.style);
        return item;
    }

    QPDF& qpdf_;
};

}  // namespace

std::vector<Bookmark> bookmarks(const Document& document, const Destinations& destinations) {
    auto outlines = document.root().getKey("/Outlines");
    if (!outlines.isDictionary()) return {};
    return BookmarkReader(destinations).below(outlines, 1);
}

void forEachBookmark(const Document& document, const std::function<void(QPDFObjectHandle)>& visit) {
    ObjectSet seen;
    std::vector<QPDFObjectHandle> waiting{document.root().getKey("/Outlines")};
    while (!waiting.empty()) {
        auto item = waiting.back();
        waiting.pop_back();
        if (!item.isDictionary() || !seen.insert(item)) continue;
        visit(item);
        waiting.push_back(item.getKey("/Next"));
        waiting.push_back(item.getKey("/First"));
    }
}

void setBookmarks(const Document& document, const std::vector<Bookmark>& bookmarks) {
    auto root = document.root();
    if (bookmarks.empty()) {
        root.removeKey("/Outlines");
        return;
    }
    auto outlines = document.qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
    outlines.replaceKey("/Type", QPDFObjectHandle::newName("/Outlines"));
    const int shown = BookmarkWriter(document.qpdf()).write(bookmarks, outlines);
    outlines.replaceKey("/Count", QPDFObjectHandle::newInteger(shown));
    root.replaceKey("/Outlines", outlines);
}

std::vector<Bookmark> bookmarksLeft(std::vector<Bookmark> bookmarks,
                                    const std::function<bool(QPDFObjectHandle page)>& isLeft) {
    std::vector<Bookmark> left;
    for (Bookmark& bookmark : bookmarks) {
        bookmark.children = bookmarksLeft(std::move(bookmark.children), isLeft);
        const bool hadPlace = bookmark.place.has_value();
        if (hadPlace && !isLeft(bookmark.place->getArrayItem(0))) bookmark.place.reset();
        const bool isHeading = !hadPlace && bookmark.action;
        if (bookmark.place || isHeading || !bookmark.children.empty()) left.push_back(std::move(bookmark));
    }
    return left;
}

}  // namespace tamble::pdf
