#pragma once

#include <TambleCore/PDF/Structure/Bookmarks.h>
#include <TambleCore/PDF/Structure/Carrying/CarriedObjects.h>

namespace tamble::pdf {

/// One of the documents that become one. Its objects keep standing in it, changed where they will belong to
/// the whole, until they are written into the new file under numbers of their own.
class AssemblyPart {
  public:
    AssemblyPart(Document document, std::string title);

    const Document& document() const noexcept { return document_; }
    const std::string& title() const noexcept { return title_; }
    const Destinations& destinations() const noexcept { return destinations_; }

    /// The root of its page tree, and the bookmark of the whole part, with the document's own below it.
    QPDFObjectHandle pages() const { return pages_; }
    QPDFObjectHandle bookmark() const { return bookmark_; }

    /// How many numbers its objects take. The functions below may be called once they are given.
    int numberCount() const noexcept { return numberCount_; }
    void setFirstNumber(int first) { numbers_.base = first; }
    void setTagOffset(std::int64_t offset) { numbers_.tagOffset = offset; }
    int numberOf(QPDFObjectHandle object) const { return numbers_.numberOf(object.getObjectID()); }

    /// Makes its pages and its bookmark refer to their parents in the new file; the bookmark gets a number of
    /// its own.
    void hangInto(int pagesNumber, int bookmarksNumber, int bookmarkNumber);
    void setNeighbours(std::optional<int> previous, std::optional<int> next);
    /// An object that refers to one of the new file: a stand-in, of which there are as many as were asked for
    /// before numberCount().
    QPDFObjectHandle reference(int number);

    /// The object as an indirect one of the document: takes one of the stand-ins.
    QPDFObjectHandle keep(QPDFObjectHandle object);

    /// Takes along an object that is not reached from its pages, and answers its number.
    int include(QPDFObjectHandle object) {
        included_.push_back(object);
        return numberOf(object);
    }

    CarriedObjects objects(const std::stop_token& stop) const;

  private:
    QPDFObjectHandle newObject(QPDFObjectHandle object);
    QPDFObjectHandle indirect(QPDFObjectHandle parent, const std::string& key);

    Document document_;
    std::string title_;
    Destinations destinations_;
    /// One more than the highest number of its objects.
    int numberCount_;
    QPDFObjectHandle pages_;
    QPDFObjectHandle bookmark_;
    std::vector<QPDFObjectHandle> standIns_;
    Renumbering numbers_;
    std::vector<QPDFObjectHandle> included_;
};

}  // namespace tamble::pdf
