#pragma once

#include <TambleCore/Images/Raster.h>
#include <TambleCore/PDF/Pages/PageGeometry.h>
#include <TambleCore/PDF/Structure/Document.h>
#include <TambleCore/Platform/FileDescriptor.h>

#include <functional>
#include <mutex>
#include <stop_token>

namespace tamble::pdf {

/// Draws pages of a document, as they are shown, on white. The drawing is done by programs beside this one,
/// so that a page that crashes or hangs them costs nothing else. Its functions may be called from several
/// threads at once; nothing else may use the document meanwhile.
class PageRenderer {
  public:
    /// Draws `document`, which was opened from `file` and must outlive it. Throws PDFError::unreadable.
    PageRenderer(const Document& document, const std::filesystem::path& file);

    int pageCount() const { return static_cast<int>(pages_.size()); }
    const PageGeometry& geometry(int page) const { return pages_[static_cast<std::size_t>(page)]; }

    /// One page, stretched to exactly that size, in colour. Throws PDFError: pageTooLarge, pageFailed;
    /// Cancelled.
    Raster page(int index, PagePixels size, const std::stop_token& stop) const;

    /// How many dots per inch a page is drawn with.
    using Resolution = std::function<double(int page)>;
    using Taker = std::function<void(int page, Raster picture)>;
    /// The pages from `first` up to `end`, in colour, handed over in their order as they come. What the taker
    /// throws ends the work. Throws PDFError: pageTooLarge, pageFailed; Cancelled.
    void pages(int first, int end, const Resolution& resolution, const Taker& take,
               const std::stop_token& stop) const;

  private:
    struct Order;

    void draw(Order order, const Taker& take) const;
    void drawFrom(const FileDescriptor& file, Order& order, const Taker& take) const;
    /// The document as it was understood here, boxes included, without a password: for programs that cannot
    /// read the original.
    const FileDescriptor& rewritten() const;

    const Document& document_;
    FileDescriptor original_;
    std::vector<PageGeometry> pages_;
    mutable std::mutex rewriting_;
    mutable FileDescriptor rewritten_;
};

}  // namespace tamble::pdf
