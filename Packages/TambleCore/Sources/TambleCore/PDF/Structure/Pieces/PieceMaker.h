#pragma once

#include <TambleCore/PDF/Structure/Bookmarks.h>
#include <TambleCore/PDF/Structure/Carrying/Frame.h>
#include <TambleCore/PDF/Structure/SharedResources.h>

#include <span>

namespace tamble::pdf {

/// Writes files of some pages of a document, each with only what its pages need: their bookmarks, labels and
/// form fields, and links among themselves; and with the document's title and dates. The objects are carried
/// as they stand.
class PieceMaker {
  public:
    /// The document must live as long; it is changed, without a change of what it shows.
    explicit PieceMaker(const Document& source);

    /// Writes a new file of the pages by their indexes, counted from 0. Each page goes into one piece, once.
    void write(std::span<const int> pages, const std::filesystem::path& destination,
               const std::stop_token& stop);

  private:
    void detachPages();
    void dropLinksOut(const std::vector<QPDFObjectHandle>& pages);

    const Document& source_;
    Destinations destinations_;
    std::vector<Bookmark> bookmarks_;
    bool hasLabels_ = false;
    SharedResources shared_;
    /// What every page's key for its parent refers to.
    QPDFObjectHandle parent_;
    /// Of a piece; between two, all pages are left behind.
    Renumbering numbers_;
};

}  // namespace tamble::pdf
