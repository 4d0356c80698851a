#include <Tamble/Model/PageEdits.h>

#include <algorithm>

namespace tamble {
namespace {

constexpr std::size_t mostUndos = 100;
constexpr int fullTurn = 360;

std::vector<PageEdits::Page> untouched(int count) {
    std::vector<PageEdits::Page> pages;
    for (int i = 0; i < count; ++i) pages.push_back({.source = i});
    return pages;
}

/// Which of the numbers can stay where they are: a longest run of them that rises.
std::vector<bool> rising(std::span<const int> numbers) {
    // The place of the smallest number that ends a run of each length, and what stands before each number.
    std::vector<std::size_t> ends;
    std::vector<std::optional<std::size_t>> previous(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto at =
            std::ranges::lower_bound(ends, numbers[i], {}, [&](std::size_t end) { return numbers[end]; });
        if (at != ends.begin()) previous[i] = *std::prev(at);
        if (at == ends.end()) {
            ends.push_back(i);
        } else {
            *at = i;
        }
    }
    std::vector<bool> stays(numbers.size());
    for (auto i = ends.empty() ? std::nullopt : std::optional(ends.back()); i; i = previous[*i])
        stays[*i] = true;
    return stays;
}

}  // namespace

PageEdits::PageEdits(PageUse use, int count) : use_(use), pages_(untouched(count)) {}

int PageEdits::selectedCount() const {
    return static_cast<int>(std::ranges::count(pages_, true, &Page::isSelected));
}

int PageEdits::leftOutCount() const {
    return static_cast<int>(std::ranges::count(pages_, true, &Page::isLeftOut));
}

bool PageEdits::areSelectedLeftOut() const {
    return selectedCount() > 0 &&
           std::ranges::all_of(pages_, [](const Page& page) { return page.isLeftOut || !page.isSelected; });
}

void PageEdits::change(std::vector<Page> pages) {
    if (pages == pages_) return;
    before_.push_back(std::exchange(pages_, std::move(pages)));
    if (before_.size() > mostUndos) before_.erase(before_.begin());
}

void PageEdits::changeSelection(std::vector<Page> pages) {
    // What is picked is the result; what is selected for a moment is not.
    if (use_ == PageUse::order) {
        pages_ = std::move(pages);
    } else {
        change(std::move(pages));
    }
}

void PageEdits::select(int row, PageReach reach) {
    if (!isRow(row)) return;
    auto pages = pages_;
    const auto at = static_cast<std::size_t>(row);
    if (reach == PageReach::besides) {
        pages[at].isSelected = !pages[at].isSelected;
        anchor_ = row;
    } else {
        // Further pages are picked besides those that are.
        if (use_ == PageUse::order || reach == PageReach::only)
            for (Page& page : pages) page.isSelected = false;
        if (reach == PageReach::only) anchor_ = row;
        const auto [first, last] =
            std::minmax(row, std::clamp(anchor_, 0, static_cast<int>(pages.size()) - 1));
        for (int i = first; i <= last; ++i) pages[static_cast<std::size_t>(i)].isSelected = true;
    }
    changeSelection(std::move(pages));
}

void PageEdits::select(std::span<const int> rows, bool besides) {
    auto pages = pages_;
    if (!besides)
        for (Page& page : pages) page.isSelected = false;
    for (const int row : rows) {
        if (isRow(row)) pages[static_cast<std::size_t>(row)].isSelected = true;
    }
    changeSelection(std::move(pages));
}

void PageEdits::selectAll(bool selected) {
    auto pages = pages_;
    for (Page& page : pages) page.isSelected = selected;
    changeSelection(std::move(pages));
}

void PageEdits::turn(int degrees) {
    auto pages = pages_;
    for (Page& page : pages) {
        if (page.isSelected) page.rotation = ((page.rotation + degrees) % fullTurn + fullTurn) % fullTurn;
    }
    change(std::move(pages));
}

void PageEdits::toggleLeftOut() {
    const bool leavesOut = !areSelectedLeftOut();
    auto pages = pages_;
    for (Page& page : pages) {
        if (page.isSelected) page.isLeftOut = leavesOut;
    }
    change(std::move(pages));
}

std::vector<PageEdits::Page> PageEdits::gathered(std::size_t othersBefore) const {
    std::vector<Page> moving, pages;
    for (const Page& page : pages_) (page.isSelected ? moving : pages).push_back(page);
    const auto place = static_cast<std::ptrdiff_t>(std::min(othersBefore, pages.size()));
    pages.insert(pages.begin() + place, moving.begin(), moving.end());
    return pages;
}

void PageEdits::moveBefore(int row) {
    const auto end = pages_.begin() + std::clamp(row, 0, static_cast<int>(pages_.size()));
    const auto others = std::count_if(pages_.begin(), end, [](const Page& page) { return !page.isSelected; });
    change(gathered(static_cast<std::size_t>(others)));
}

void PageEdits::moveBy(int rows) {
    const auto first = std::ranges::find(pages_, true, &Page::isSelected) - pages_.begin();
    change(gathered(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, first + rows))));
}

void PageEdits::undo() {
    if (before_.empty()) return;
    pages_ = std::move(before_.back());
    before_.pop_back();
}

void PageEdits::reset() {
    change(untouched(static_cast<int>(pages_.size())));
}

bool PageEdits::isChanged() const {
    if (use_ != PageUse::order) return selectedCount() > 0;
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        const Page& page = pages_[i];
        if (page.source != static_cast<int>(i) || page.rotation != 0 || page.isLeftOut) return true;
    }
    return false;
}

std::optional<std::vector<PageEdit>> PageEdits::result() const {
    if (!isChanged()) return std::nullopt;
    std::vector<PageEdit> result;
    for (const Page& page : pages_) {
        const bool stays = use_ == PageUse::order      ? !page.isLeftOut
                           : use_ == PageUse::deletion ? !page.isSelected
                                                       : page.isSelected;
        if (stays) result.push_back({.source = page.source, .rotation = page.rotation});
    }
    return result;
}

std::vector<std::pair<int, int>> movesBetween(std::span<const PageEdits::Page> from,
                                              std::span<const PageEdits::Page> to) {
    std::vector<int> now, wanted;
    for (const auto& page : from) now.push_back(page.source);
    std::vector<int> rowOf(now.size());
    for (std::size_t i = 0; i < now.size(); ++i)
        rowOf[static_cast<std::size_t>(now[i])] = static_cast<int>(i);
    for (const auto& page : to) wanted.push_back(rowOf[static_cast<std::size_t>(page.source)]);
    const std::vector<bool> stays = rising(wanted);

    std::vector<std::pair<int, int>> moves;
    const auto find = [&now](int source) { return std::ranges::find(now, source) - now.begin(); };
    for (std::size_t i = 0; i < to.size(); ++i) {
        if (stays[i]) continue;
        const auto row = find(to[i].source);
        now.erase(now.begin() + row);
        // Right behind the one before it; those that stay come later anyway.
        const auto place = i == 0 ? 0 : find(to[i - 1].source) + 1;
        now.insert(now.begin() + place, to[i].source);
        if (row != place) moves.emplace_back(static_cast<int>(row), static_cast<int>(place));
    }
    return moves;
}

}  // namespace tamble
