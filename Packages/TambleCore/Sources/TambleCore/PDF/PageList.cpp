#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/PageList.h>
#include <TambleCore/Support/Text.h>

#include <algorithm>
#include <charconv>
#include <numeric>

namespace tamble {
namespace {

enum class Turns { refused, allowed };

struct Group {
    std::vector<int> pages;
    int rotation = 0;
};

[[noreturn]] void refuse() {
    throw PDFError(PDFError::Case::invalidPageRange);
}

/// Digits only: no sign, nothing behind them.
int number(std::string_view text) {
    text = trimmed(text);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isPlain = !text.empty() && text.front() != '-';
    if (!isPlain || error != std::errc() || end != text.data() + text.size()) refuse();
    return value;
}

/// The text up to the separator, which is taken away with it.
std::string_view taken(std::string_view& text, char separator) {
    const auto end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

class Reader {
  public:
    Reader(int pageCount, Turns turns)
        : turns_(turns), isTaken_(static_cast<std::size_t>(std::max(pageCount, 0))) {}

    std::vector<Group> read(std::string_view text) {
        std::vector<Group> groups;
        const auto commas = std::ranges::count(text, ',');
        for (std::ptrdiff_t i = 0; i <= commas; ++i) groups.push_back(group(taken(text, ',')));
        return groups;
    }

  private:
    Group group(std::string_view text) {
        Group group;
        const bool isTurned = text.find(':') != std::string_view::npos;
        if (isTurned && turns_ == Turns::refused) refuse();
        std::string_view span = taken(text, ':');
        if (isTurned) group.rotation = number(text);
        if (group.rotation % 90 != 0) refuse();
        const bool isSpan = span.find('-') != std::string_view::npos;
        const int first = number(taken(span, '-'));
        const int last = isSpan ? number(span) : first;
        if (first < 1 || last < first || std::cmp_greater(last, isTaken_.size())) refuse();
        for (int page = first - 1; page < last; ++page) {
            if (isTaken_[static_cast<std::size_t>(page)]) refuse();
            isTaken_[static_cast<std::size_t>(page)] = true;
            group.pages.push_back(page);
        }
        return group;
    }

    Turns turns_;
    std::vector<bool> isTaken_;
};

std::vector<std::vector<int>> groupsOf(int size, int pageCount) {
    if (size < 1) refuse();
    std::vector<std::vector<int>> groups;
    for (int page = 0; page < pageCount; ++page) {
        if (page % size == 0) groups.emplace_back();
        groups.back().push_back(page);
    }
    return groups;
}

}  // namespace

std::vector<std::vector<int>> pageGroups(std::string_view text, int pageCount) {
    std::vector<std::vector<int>> groups;
    for (Group& group : Reader(pageCount, Turns::refused).read(text))
        groups.push_back(std::move(group.pages));
    return groups;
}

std::vector<PageEdit> pageOrder(std::string_view text, int pageCount) {
    std::vector<PageEdit> order;
    for (const Group& group : Reader(pageCount, Turns::allowed).read(text)) {
        for (const int page : group.pages) order.push_back({.source = page, .rotation = group.rotation});
    }
    return order;
}

std::vector<PageEdit> pagesWithout(std::string_view text, int pageCount) {
    std::vector<bool> goes(static_cast<std::size_t>(std::max(pageCount, 0)));
    for (const auto& group : pageGroups(text, pageCount)) {
        for (const int page : group) goes[static_cast<std::size_t>(page)] = true;
    }
    std::vector<PageEdit> left;
    for (int page = 0; page < pageCount; ++page) {
        if (!goes[static_cast<std::size_t>(page)]) left.push_back({.source = page});
    }
    if (left.empty()) throw PDFError(PDFError::Case::noPages);
    return left;
}

void requireFitting(std::span<const PageEdit> pages, int pageCount) {
    if (pages.empty()) throw PDFError(PDFError::Case::noPages);
    for (const PageEdit& page : pages) {
        if (page.source < 0 || page.source >= pageCount || page.rotation % 90 != 0) refuse();
    }
}

std::vector<std::vector<int>> splitGroups(const PDFSplitMode& mode, int pageCount) {
    if (const auto* every = std::get_if<split_mode::Every>(&mode)) return groupsOf(every->value, pageCount);
    if (const auto* ranges = std::get_if<split_mode::Ranges>(&mode))
        return pageGroups(ranges->value, pageCount);
    return groupsOf(1, pageCount);
}

}  // namespace tamble
