#include <Tamble/Desktop/Models/JobModel.h>
#include <Tamble/Desktop/Support/Background.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <QLocale>

namespace tamble {
namespace {

/// How often the screen follows the job: a job tells far more than anybody can read.
constexpr int betweenLooks = 100;
/// Before that the time left would only be guessed.
constexpr qint64 soonestGuess = 3000;
constexpr double leastForGuess = 0.03;

}  // namespace

JobModel::JobModel(std::shared_ptr<WorkerPool> workers, QObject* parent)
    : QObject(parent), workers_(std::move(workers)) {
    pool_.setMaxThreadCount(1);
    tick_.setInterval(betweenLooks);
    connect(&tick_, &QTimer::timeout, this, &JobModel::show);
}

JobModel::~JobModel() {
    stop_.request_stop();
    pool_.waitForDone();
}

void JobModel::start(JobOrder order, const QString& headline, const QString& category) {
    if (isRunning_) return;
    isRunning_ = true;
    headline_ = headline;
    category_ = category;
    stop_ = std::stop_source();
    told_ = std::make_shared<Told>();
    told_->progress.total = static_cast<int>(order.files.size());
    clock_.start();
    show();
    tick_.start();
    emit runningChanged();
    inBackground(
        pool_, this,
        [order = std::move(order), workers = workers_, told = told_, stop = stop_.get_token()]() mutable {
            const JobRunner::Watch watch{.onProgress =
                                             [told](const JobProgress& progress) {
                                                 const std::scoped_lock lock(told->mutex);
                                                 told->progress = progress;
                                             },
                                         .onStart =
                                             [told](const InputFile& file) {
                                                 const std::scoped_lock lock(told->mutex);
                                                 told->file = file.url.filename().native();
                                             },
                                         .onEnd =
                                             [told](ItemEnd end) {
                                                 const std::scoped_lock lock(told->mutex);
                                                 ++(end == ItemEnd::done      ? told->done
                                                    : end == ItemEnd::skipped ? told->skipped
                                                                              : told->failed);
                                             }};
            return std::make_shared<FinishedJob>(JobRunner(workers).run(std::move(order), watch, stop));
        },
        [this](const std::shared_ptr<FinishedJob>& job) {
            isRunning_ = false;
            tick_.stop();
            show();
            emit runningChanged();
            emit finished(job);
        });
}

void JobModel::show() {
    {
        const std::scoped_lock lock(told_->mutex);
        progress_ = told_->progress;
        file_ = texts::name(told_->file);
        done_ = told_->done;
        skipped_ = told_->skipped;
        failed_ = told_->failed;
    }
    emit progressed();
}

double JobModel::fraction() const {
    if (progress_.total == 0) return 0;
    return std::min(1.0, (progress_.completed + progress_.partial) / progress_.total);
}

QString JobModel::position() const {
    const QLocale locale;
    if (isSaving())
        return tr("Saving %1 of %2")
            .arg(locale.toString(progress_.completed), locale.toString(progress_.total));
    if (isStopping()) return tr("Stopping…");
    const int current = std::min(progress_.completed + 1, progress_.total);
    const QString place = tr("%1 of %2").arg(locale.toString(current), locale.toString(progress_.total));
    return file_.isEmpty() ? place : place + QStringLiteral(" · ") + file_;
}

QString JobModel::counts() const {
    QStringList parts;
    parts << tr("%n done", nullptr, done_);
    if (skipped_ > 0) parts << tr("%n skipped", nullptr, skipped_);
    if (failed_ > 0) parts << tr("%n failed", nullptr, failed_);
    return parts.join(QStringLiteral(", "));
}

QString JobModel::timeLeft() const {
    const qint64 elapsed = clock_.elapsed();
    if (!isRunning_ || isSaving() || isStopping() || elapsed < soonestGuess || fraction() < leastForGuess)
        return {};
    return texts::timeLeft(static_cast<double>(elapsed) / 1000 * (1 - fraction()) / fraction());
}

void JobModel::cancel() {
    if (!isSaving()) stop_.request_stop();
    emit progressed();
}

}  // namespace tamble
