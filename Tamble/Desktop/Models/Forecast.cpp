#include <Tamble/Desktop/Models/Forecast.h>
#include <Tamble/Desktop/Support/Background.h>
#include <Tamble/Desktop/Support/StartText.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Model/ProtectedWork.h>

namespace tamble {
namespace {

/// Typing and dragging change things faster than it is worth estimating.
constexpr int pauseBeforeEstimate = 250;

}  // namespace

Forecast::Forecast(std::shared_ptr<WorkerPool> workers, QObject* parent)
    : QObject(parent), workers_(std::move(workers)) {
    pool_.setMaxThreadCount(2);
    pause_.setSingleShot(true);
    pause_.setInterval(pauseBeforeEstimate);
    connect(&pause_, &QTimer::timeout, this, &Forecast::estimate);
}

Forecast::~Forecast() {
    estimating_.request_stop();
    pool_.waitForDone();
}

void Forecast::update(const ToolSession* session) {
    estimating_.request_stop();
    bytesAfter_.reset();
    isEstimating_ = session != nullptr && session->definition().estimate && !session->files().empty();
    order_ = isEstimating_ ? session->order(today(), 0) : JobOrder{};
    bytesBefore_ = isEstimating_ ? session->inputBytes() : 0;
    if (isEstimating_) {
        pause_.start();
    } else {
        pause_.stop();
    }
    emit sizeChanged();
    updateExample(session);
}

void Forecast::estimate() {
    estimating_ = std::stop_source();
    inBackground(
        pool_, this,
        [order = order_, workers = workers_, stop = estimating_.get_token()] {
            return protectedEstimate(*order.tool, order.files, order.settings, *workers, stop);
        },
        [this, stop = estimating_.get_token()](std::optional<std::int64_t> bytes) {
            if (stop.stop_requested()) return;
            bytesAfter_ = bytes;
            isEstimating_ = false;
            emit sizeChanged();
        });
}

void Forecast::updateExample(const ToolSession* session) {
    const std::uint64_t number = ++exampleNumber_;
    const bool namesItself =
        session != nullptr && session->renames() && session->renameWay == RenameWay::inPlace;
    if (session == nullptr || session->files().empty() || namesItself) {
        example_.clear();
        emit exampleChanged();
        return;
    }
    JobOrder order = session->order(today(), 0);
    // One file tells how the others are named, but a tool that makes one of all names it after all.
    if (!session->combines()) order.files.resize(1);
    inBackground(
        pool_, this,
        [order = std::move(order)] { return texts::example(order, JobRunner(nullptr).plan(order)); },
        [this, number](const QString& example) {
            if (number != exampleNumber_) return;
            example_ = example;
            emit exampleChanged();
        });
}

QString Forecast::size() const {
    const QString before = texts::size(bytesBefore_);
    if (isEstimating_) return tr("%1 → estimating…").arg(before);
    return bytesAfter_ ? tr("%1 → about %2").arg(before, texts::size(*bytesAfter_)) : QString();
}

QString Forecast::change() const {
    return bytesAfter_ ? texts::change(bytesBefore_, *bytesAfter_) : QString();
}

}  // namespace tamble
