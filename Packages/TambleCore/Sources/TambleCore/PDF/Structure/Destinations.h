#pragma once

#include <TambleCore/PDF/Structure/Document.h>

#include <functional>
#include <map>
#include <optional>

namespace tamble::pdf {

/// Where links and bookmarks of one document lead: places on pages, given outright or by a name.
class Destinations {
  public:
    explicit Destinations(const Document& document);

    /// The place that a destination (an array, a name, a string, or a dictionary with /D) stands for, as an
    /// array with its page first, also where the document gives the page's number instead; empty when there
    /// is none in this document.
    std::optional<QPDFObjectHandle> place(QPDFObjectHandle destination) const;

    /// The place to which a link annotation or a bookmark leads (/Dest, or /A with a /GoTo action).
    std::optional<QPDFObjectHandle> placeOf(QPDFObjectHandle link) const;

    /// Every name that is a string, by the bytes that readers look for, with its place.
    const std::map<std::string, QPDFObjectHandle>& named() const noexcept { return named_; }

  private:
    std::optional<QPDFObjectHandle> explicitPlace(QPDFObjectHandle destination) const;
    void addNames(QPDFObjectHandle tree);

    std::vector<QPDFObjectHandle> pages_;
    std::map<std::string, QPDFObjectHandle> named_;
    /// Names as PDF 1.1 had them stand in a table of their own.
    std::map<std::string, QPDFObjectHandle> olderNamed_;
};

/// Whether a link annotation or bookmark leads, or should lead, to a page of its own document.
bool leadsInside(QPDFObjectHandle link);

/// Makes it lead to the place, or nowhere.
void setPlace(QPDFObjectHandle link, const std::optional<QPDFObjectHandle>& place);

/// Makes links and bookmarks lead to their places outright: those that name them in the older way or by a
/// page's number, which hold for nothing but the whole document as it is; or all.
enum class Naming { older, any };
void makePlacesExplicit(const Document& document, const Destinations& destinations, Naming naming);

/// Calls for each link annotation of the page.
void forEachLink(QPDFObjectHandle page, const std::function<void(QPDFObjectHandle)>& visit);

/// Replaces a table of the document in which objects are found by names, as "/Dests" or "/EmbeddedFiles"; the
/// names are the bytes of strings as they are stored.
void setNames(const Document& document, const std::string& table,
              const std::map<std::string, QPDFObjectHandle>& named);

/// Replaces all named destinations of the document but those of the older kind.
void setNamedDestinations(const Document& document, const std::map<std::string, QPDFObjectHandle>& named);

}  // namespace tamble::pdf
