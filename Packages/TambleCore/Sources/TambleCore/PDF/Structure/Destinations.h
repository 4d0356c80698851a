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
    /// array with its page first; empty when there is none in this document.
    std::optional<QPDFObjectHandle> place(QPDFObjectHandle destination) const;

    /// The place to which a link annotation or a bookmark leads (/Dest, or /A with a /GoTo action).
    std::optional<QPDFObjectHandle> placeOf(QPDFObjectHandle link) const;

    /// Every name with its place. Names of both kinds of table are one set, as bytes.
    const std::map<std::string, QPDFObjectHandle>& named() const noexcept { return named_; }

  private:
    std::map<std::string, QPDFObjectHandle> named_;
};

/// Whether a link annotation or bookmark leads, or should lead, to a page of its own document.
bool leadsInside(QPDFObjectHandle link);

/// Makes it lead to the place, or nowhere.
void setPlace(QPDFObjectHandle link, const std::optional<QPDFObjectHandle>& place);

/// Calls for each link annotation of the page.
void forEachLink(QPDFObjectHandle page, const std::function<void(QPDFObjectHandle)>& visit);

/// Replaces a table of the document in which objects are found by names in UTF-8, as "/Dests" or
/// "/EmbeddedFiles".
void setNames(const Document& document, const std::string& table,
              const std::map<std::string, QPDFObjectHandle>& named);

/// Replaces all named destinations of the document.
void setNamedDestinations(const Document& document, const std::map<std::string, QPDFObjectHandle>& named);

}  // namespace tamble::pdf
