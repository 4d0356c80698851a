#include <TambleCore/PDF/Operations/LockedOutput.h>
#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/PDFNames.h>
#include <TambleCore/PDF/PageList.h>
#include <TambleCore/PDF/Structure/Pieces/PieceMaker.h>

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

namespace tamble::pdf {
namespace {

/// Writes the pieces of one PDF, each thread from a reading of its own.
class Splitting {
  public:
    explicit Splitting(const SingleWork& work) : work_(work), stem_(work.file.url.stem().native()) {}

    void run() {
        const Document document = open();
        if (isSealed(document)) work_.context.leave(ItemNote::sealBroken);
        groups_ = splitGroups(work_.settings.split, document.pageCount());
        std::filesystem::create_directory(work_.destination);
        {
            std::jthread helper;
            // A second reading costs more than a few pieces take.
            constexpr std::size_t worthHelp = 8;
            if (groups_.size() >= worthHelp) {
                helper = std::jthread([this] { keepingFailure([this] { writePieces(open()); }); });
            }
            keepingFailure([&] { writePieces(document); });
        }
        if (failure_) std::rethrow_exception(failure_);
    }

  private:
    Document open() const { return Document::open(work_.file.url, work_.settings.password); }

    void writePieces(const Document& document) {
        PieceMaker maker(document);
        for (std::size_t i = next_++; i < groups_.size(); i = next_++) {
            work_.context.throwIfStopped();
            const auto file = work_.destination / pieceName(stem_, i, groups_.size(), groups_[i]);
            maker.write(groups_[i], file, work_.context.stop);
            if (document.isLocked()) lock(file, work_.settings.password, work_.context);
            work_.context.report(static_cast<double>(++written_) / static_cast<double>(groups_.size()));
        }
    }

    template <typename Work>
    void keepingFailure(const Work& work) {
        try {
            work();
        } catch (...) {
            const std::scoped_lock lock(mutex_);
            if (!failure_) failure_ = std::current_exception();
            next_ = groups_.size();
        }
    }

    const SingleWork& work_;
    std::string stem_;
    std::vector<std::vector<int>> groups_;
    std::atomic<std::size_t> next_ = 0;
    std::atomic<std::size_t> written_ = 0;
    std::mutex mutex_;
    std::exception_ptr failure_;
};

}  // namespace

void split(const SingleWork& work) {
    Splitting(work).run();
}

}  // namespace tamble::pdf
