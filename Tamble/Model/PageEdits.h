#pragma once

#include <TambleCore/PDF/PDFJobSettings.h>

#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace tamble {

/// What the pages are picked for: their order and turns, those that go, or those that are taken out.
enum class PageUse { order, deletion, selection };

/// How far a click reaches: this page alone, this one besides the others, or all from the last one to it.
enum class PageReach { only, besides, through };

/// The pages of a document as people arrange them. For `order` they are selected, and what is done is done to
/// the selected ones; otherwise those that are selected are the picked ones. Rows that are none are ignored.
class PageEdits {
  public:
    struct Page {
        /// Its index in the document, counted from 0.
        int source = 0;
        /// Degrees clockwise: 0, 90, 180 or 270, besides the page's own turn.
        int rotation = 0;
        bool isLeftOut = false;
        bool isSelected = false;
        friend bool operator==(const Page&, const Page&) = default;
    };

    PageEdits() = default;
    PageEdits(PageUse use, int count);

    PageUse use() const { return use_; }
    const std::vector<Page>& pages() const { return pages_; }
    int selectedCount() const;
    int leftOutCount() const;
    bool areSelectedLeftOut() const;

    void select(int row, PageReach reach);
    void select(std::span<const int> rows, bool besides);
    void selectAll(bool selected);

    /// Degrees clockwise, a multiple of 90.
    void turn(int degrees);
    /// Leaves the selected pages out, or brings them back when all of them are.
    void toggleLeftOut();
    /// Puts the selected pages before that row, or behind all others.
    void moveBefore(int row);
    /// Puts them that many rows further, as far as that goes.
    void moveBy(int rows);

    bool canUndo() const { return !before_.empty(); }
    void undo();
    /// Back to the document as it is; can be undone as well.
    void reset();
    bool isChanged() const;

    /// The whole new document; nothing when it would be the same, or nothing is picked.
    std::optional<std::vector<PageEdit>> result() const;

  private:
    bool isRow(int row) const { return row >= 0 && row < static_cast<int>(pages_.size()); }
    void change(std::vector<Page> pages);
    void changeSelection(std::vector<Page> pages);
    std::vector<Page> gathered(std::size_t othersBefore) const;

    PageUse use_ = PageUse::order;
    std::vector<Page> pages_;
    /// The last ones, the newest at the end.
    std::vector<std::vector<Page>> before_;
    int anchor_ = 0;
};

/// A way with few moves from one order of the same pages to another: each takes the row `first` out and puts
/// it at the row `second`.
std::vector<std::pair<int, int>> movesBetween(std::span<const PageEdits::Page> from,
                                              std::span<const PageEdits::Page> to);

}  // namespace tamble
