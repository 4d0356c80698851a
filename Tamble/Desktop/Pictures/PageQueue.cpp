#include <Tamble/Desktop/Pictures/PageQueue.h>

#include <algorithm>
#include <chrono>

namespace tamble {
namespace {

constexpr int atOnce = 2;
constexpr std::size_t longestSpan = 12;
/// A view asks for all pages in sight one after the other.
constexpr std::chrono::milliseconds gathering{8};

bool canBeDrawnTogether(const PageQueue::Page& a, const PageQueue::Page& b) {
    return a.pixels == b.pixels && a.file == b.file;
}

}  // namespace

PageQueue::PageQueue(Draw draw) : draw_(std::move(draw)) {
    for (int i = 0; i < atOnce; ++i)
        threads_.emplace_back([this](std::stop_token stop) { work(std::move(stop)); });
}

std::uint64_t PageQueue::want(Page page, Taker taker) {
    std::uint64_t number = 0;
    {
        const std::lock_guard lock(mutex_);
        number = ++last_;
        waiting_.push_back({number, std::move(page), std::move(taker)});
    }
    arrived_.notify_one();
    return number;
}

bool PageQueue::cancel(std::uint64_t number) {
    const std::lock_guard lock(mutex_);
    const auto isIt = [number](const Wanted& wanted) { return wanted.number == number; };
    if (std::erase_if(waiting_, isIt) > 0) return true;
    for (Span& span : running_) {
        if (std::erase_if(span.pages, isIt) == 0) continue;
        if (span.pages.empty()) span.stop.request_stop();
        return true;
    }
    return false;
}

void PageQueue::work(std::stop_token stop) {
    while (Span* span = next(stop)) draw(*span, stop);
}

PageQueue::Span* PageQueue::next(std::stop_token stop) {
    std::unique_lock lock(mutex_);
    do {
        if (!arrived_.wait(lock, stop, [this] { return !waiting_.empty(); })) return nullptr;
        arrived_.wait_for(lock, stop, gathering, [] { return false; });
    } while (waiting_.empty() && !stop.stop_requested());
    if (stop.stop_requested()) return nullptr;

    // The one that waits longest, with those right behind and before it.
    const Page oldest = waiting_.front().page;
    int first = oldest.number;
    int last = oldest.number;
    const auto isWanted = [&](int number) {
        return std::ranges::any_of(waiting_, [&](const Wanted& wanted) {
            return wanted.page.number == number && canBeDrawnTogether(wanted.page, oldest);
        });
    };
    const auto isRoom = [&] { return last - first + 1 < static_cast<int>(longestSpan); };
    while (isRoom() && isWanted(last + 1)) ++last;
    while (isRoom() && isWanted(first - 1)) --first;
    Span& span = running_.emplace_back();
    std::erase_if(waiting_, [&](Wanted& wanted) {
        const bool isPart = wanted.page.number >= first && wanted.page.number <= last &&
                            canBeDrawnTogether(wanted.page, oldest);
        if (isPart) span.pages.push_back(std::move(wanted));
        return isPart;
    });
    return &span;
}

std::optional<PageQueue::Wanted> PageQueue::taken(Span& span, std::optional<int> page) {
    const std::lock_guard lock(mutex_);
    const auto at = std::ranges::find_if(
        span.pages, [&](const Wanted& wanted) { return !page || wanted.page.number == *page; });
    if (at == span.pages.end()) return std::nullopt;
    Wanted wanted = std::move(*at);
    span.pages.erase(at);
    return wanted;
}

void PageQueue::draw(Span& span, std::stop_token stop) {
    const std::stop_callback ending(stop, [&span] { span.stop.request_stop(); });
    std::optional<Page> first;
    int count = 0;
    {
        const std::lock_guard lock(mutex_);
        for (const Wanted& wanted : span.pages) {
            const int last =
                first ? std::max(first->number + count - 1, wanted.page.number) : wanted.page.number;
            if (!first || wanted.page.number < first->number) first = wanted.page;
            count = last - first->number + 1;
        }
    }
    if (first) {
        try {
            draw_(
                *first, count,
                [&](int number, const QImage& picture) {
                    // A page may be wanted more than once.
                    while (const auto wanted = taken(span, number)) wanted->taker(picture);
                },
                span.stop.get_token());
        } catch (const std::exception&) {
            // What was not drawn until then has no picture.
        }
    }
    while (const auto wanted = taken(span, std::nullopt)) wanted->taker({});
    const std::lock_guard lock(mutex_);
    running_.remove_if([&span](const Span& other) { return &other == &span; });
}

}  // namespace tamble
