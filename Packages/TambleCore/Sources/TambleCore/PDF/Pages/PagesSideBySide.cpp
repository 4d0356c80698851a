#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Pages/PagesSideBySide.h>

#include <algorithm>
#include <condition_variable>
#include <thread>

namespace tamble::pdf {
namespace {

/// Several documents may be at work at once.
constexpr int mostLanes = 8;
/// What all pages that are at work may take, in bytes; a single one may take more.
constexpr double mostAtOnce = 512e6;
/// Pages that one run of the drawing program draws at most; starting it takes as long as drawing a page or
/// two.
constexpr int mostPagesPerRun = 16;
constexpr int leastRunsPerLane = 4;

/// The work on all pages; each lane takes the next few until none are left.
class Lanes {
  public:
    Lanes(const PageRenderer& renderer, const PageRenderer::Resolution& resolution,
          const PageRenderer::Taker& take, const WorkContext& context)
        : renderer_(renderer),
          resolution_(resolution),
          take_(take),
          context_(context),
          stopping_(context.stop, [this] { end_.request_stop(); }) {}

    void run(int lanes) {
        pagesPerRun_ = std::clamp(renderer_.pageCount() / (lanes * leastRunsPerLane), 1, mostPagesPerRun);
        {
            std::vector<std::jthread> threads;
            working_ = lanes;
            for (int lane = 0; lane < lanes; ++lane) threads.emplace_back([this] { work(); });
            watch();
        }
        context_.throwIfStopped();
        if (failure_) std::rethrow_exception(failure_);
    }

  private:
    void work() {
        try {
            while (const auto first = nextRun()) {
                const int end = std::min(*first + pagesPerRun_, renderer_.pageCount());
                renderer_.pages(
                    *first, end, resolution_,
                    [this](int page, Raster picture) { takeOne(page, std::move(picture)); },
                    end_.get_token());
            }
        } catch (...) {
            const std::scoped_lock lock(mutex_);
            if (!failure_) failure_ = std::current_exception();
            end_.request_stop();
        }
        const std::scoped_lock lock(mutex_);
        --working_;
        changed_.notify_one();
    }

    std::optional<int> nextRun() {
        const std::scoped_lock lock(mutex_);
        if (end_.stop_requested() || next_ >= renderer_.pageCount()) return std::nullopt;
        return std::exchange(next_, next_ + pagesPerRun_);
    }

    void takeOne(int page, Raster picture) {
        {
            const std::scoped_lock lock(mutex_);
            ++taking_;
        }
        take_(page, std::move(picture));
        const std::scoped_lock lock(mutex_);
        --taking_;
        ++done_;
        changed_.notify_one();
    }

    /// Reports until all lanes have ended. Encoding a page may take long, but not for ever: it is a sign of
    /// life.
    void watch() {
        constexpr std::chrono::seconds signOfLifeEvery{1};
        std::unique_lock lock(mutex_);
        int reported = 0;
        while (working_ > 0) {
            changed_.wait_for(lock, signOfLifeEvery);
            if (done_ == reported && taking_ == 0) continue;
            reported = done_;
            const double share = static_cast<double>(done_) / renderer_.pageCount();
            lock.unlock();
            context_.report(share);
            lock.lock();
        }
    }

    const PageRenderer& renderer_;
    const PageRenderer::Resolution& resolution_;
    const PageRenderer::Taker& take_;
    const WorkContext& context_;
    int pagesPerRun_ = 1;
    /// Stops all lanes: a stop request, or the failure of one.
    std::stop_source end_;
    std::stop_callback<std::function<void()>> stopping_;
    std::mutex mutex_;
    std::condition_variable changed_;
    int next_ = 0;
    int working_ = 0;
    int taking_ = 0;
    int done_ = 0;
    std::exception_ptr failure_;
};

int laneCount(const PageRenderer& renderer, const PageRenderer::Resolution& resolution,
              double bytesPerPixel) {
    double largest = 1;
    for (int page = 0; page < renderer.pageCount(); ++page) {
        const auto size = pixelsOf(renderer.geometry(page), resolution(page));
        if (!size) throw PDFError(PDFError::Case::pageTooLarge);
        largest = std::max(largest, bytesPerPixel * size->width * size->height);
    }
    const int cores = static_cast<int>(std::thread::hardware_concurrency());
    const int fitting = static_cast<int>(std::min<double>(mostLanes, mostAtOnce / largest));
    return std::max(1, std::min({cores, fitting, renderer.pageCount()}));
}

}  // namespace

void drawSideBySide(const PageRenderer& renderer, const PageRenderer::Resolution& resolution,
                    double bytesPerPixel, const PageRenderer::Taker& take, const WorkContext& context) {
    Lanes(renderer, resolution, take, context).run(laneCount(renderer, resolution, bytesPerPixel));
}

double bytesPerPixel(ImageFormat format) {
    switch (format) {
        case ImageFormat::webp:
            return 24;
        case ImageFormat::heic:
            return 30;
        case ImageFormat::avif:
            return 40;
        case ImageFormat::gif:
            return 14;
        case ImageFormat::jpeg:
            return 12;
        case ImageFormat::png:
        case ImageFormat::tiff:
            break;
    }
    return 9;
}

}  // namespace tamble::pdf
