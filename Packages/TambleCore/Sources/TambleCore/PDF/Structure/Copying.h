#pragma once

#include <TambleCore/PDF/Structure/Bookmarks.h>

#include <map>

namespace tamble::pdf {

/// Which page of a new document each copied page of another one became.
class CopiedPages {
  public:
    void add(QPDFObjectHandle source, QPDFObjectHandle copy) {
        copies_.insert_or_assign(source.getObjGen(), copy);
    }

    /// The same place in the new document; empty when its page was not copied.
    std::optional<QPDFObjectHandle> place(QPDFObjectHandle place) const;

  private:
    std::map<QPDFObjGen, QPDFObjectHandle> copies_;
};

/// The bookmarks as they are in the document to which the pages were copied; without those that lead to other
/// pages.
std::vector<Bookmark> copiedBookmarks(const std::vector<Bookmark>& bookmarks, const CopiedPages& pages,
                                      const Document& target);

/// The object as the target's own, whether it was direct or not.
QPDFObjectHandle copied(QPDFObjectHandle object, const Document& target);

/// Takes over title, author and dates, the language, how the document opens, and its layers.
void copyDocumentProperties(const Document& source, const Document& target);

}  // namespace tamble::pdf
