#pragma once

#include <TambleCore/PDF/Structure/Bookmarks.h>
#include <TambleCore/PDF/Structure/SharedResources.h>

#include <span>

#include <qpdf/QPDFAcroFormDocumentHelper.hh>

namespace tamble::pdf {

/// Makes documents of some pages of another one, each with only what its pages need: their bookmarks, labels
/// and form fields, and links among themselves; and with the other's title and dates.
class PieceMaker {
  public:
    /// The document must live as long; it is changed, without a change of what it shows.
    explicit PieceMaker(const Document& source);

    /// The pages by their indexes, counted from 0 and each named once.
    Document piece(std::span<const int> pages);

  private:
    void makeLinksExplicit();

    const Document& source_;
    Destinations destinations_;
    std::vector<Bookmark> bookmarks_;
    QPDFAcroFormDocumentHelper forms_;
    bool hasForms_ = false;
    bool hasLabels_ = false;
    SharedResources shared_;
};

}  // namespace tamble::pdf
