#pragma once

#include <QImage>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <vector>

namespace tamble {

/// Draws pages that are wanted at about the same time in spans, since each costs opening its document.
/// Thread-safe.
class PageQueue {
  public:
    struct Page {
        std::filesystem::path file;
        /// Counted from 0.
        int number = 0;
        /// Of the longest side.
        int pixels = 256;
    };
    /// Takes the picture of one wanted page, on a thread of the queue; an empty one if it cannot be drawn.
    using Taker = std::function<void(const QImage& picture)>;
    /// Draws `count` pages from `first` on and hands over each as soon as it is there. May throw.
    using Draw = std::function<void(const Page& first, int count,
                                    const std::function<void(int number, const QImage& picture)>& take,
                                    std::stop_token stop)>;

    explicit PageQueue(Draw draw);

    /// Answers the number by which it can be cancelled.
    std::uint64_t want(Page page, Taker taker);
    /// Whether its taker will never be called; otherwise it was, or is about to be.
    bool cancel(std::uint64_t number);

  private:
    struct Wanted {
        std::uint64_t number = 0;
        Page page;
        Taker taker;
    };
    struct Span {
        std::vector<Wanted> pages;
        std::stop_source stop;
    };

    void work(std::stop_token stop);
    /// Waits for pages; null after a stop request.
    Span* next(std::stop_token stop);
    void draw(Span& span, std::stop_token stop);
    /// Empty when it was cancelled.
    std::optional<Wanted> taken(Span& span, std::optional<int> page);

    Draw draw_;
    std::mutex mutex_;
    std::condition_variable_any arrived_;
    std::uint64_t last_ = 0;
    std::vector<Wanted> waiting_;
    std::list<Span> running_;
    std::vector<std::jthread> threads_;
};

}  // namespace tamble
