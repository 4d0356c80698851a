#pragma once

#include <Tamble/Model/JobRunner.h>

#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <QtQmlIntegration>
#include <atomic>
#include <mutex>

namespace tamble {

/// The job that runs: how far it is, and the way to stop it.
class JobModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY runningChanged)
    Q_PROPERTY(bool isSaving READ isSaving NOTIFY progressed)
    Q_PROPERTY(bool isStopping READ isStopping NOTIFY progressed)
    Q_PROPERTY(QString headline READ headline NOTIFY runningChanged)
    Q_PROPERTY(QString category READ category NOTIFY runningChanged)
    Q_PROPERTY(double fraction READ fraction NOTIFY progressed)
    Q_PROPERTY(QString position READ position NOTIFY progressed)
    Q_PROPERTY(QString counts READ counts NOTIFY progressed)
    Q_PROPERTY(QString timeLeft READ timeLeft NOTIFY progressed)

  public:
    explicit JobModel(std::shared_ptr<WorkerPool> workers, QObject* parent = nullptr);
    ~JobModel() override;

    /// One job at a time. `headline`: "Converting 128 photos".
    void start(JobOrder order, const QString& headline, const QString& category);

    bool isRunning() const { return isRunning_; }
    bool isSaving() const { return progress_.phase != JobProgress::Phase::processing; }
    bool isStopping() const { return stop_.stop_requested() && !isSaving(); }
    QString headline() const { return headline_; }
    QString category() const { return category_; }
    /// 0…1; saving counts from the start again.
    double fraction() const;
    QString position() const;
    QString counts() const;
    QString timeLeft() const;

    /// Nothing is saved then, unless saving has begun.
    Q_INVOKABLE void cancel();

  signals:
    void runningChanged();
    void progressed();
    /// On the main thread.
    void finished(const std::shared_ptr<tamble::FinishedJob>& job);

  private:
    void show();

    /// What the job's threads tell and the main thread picks up from time to time.
    struct Told {
        std::mutex mutex;
        JobProgress progress;
        std::string file;
        int done = 0, skipped = 0, failed = 0;
    };

    std::shared_ptr<WorkerPool> workers_;
    std::shared_ptr<Told> told_ = std::make_shared<Told>();
    JobProgress progress_;
    QString file_;
    int done_ = 0, skipped_ = 0, failed_ = 0;
    QString headline_;
    QString category_;
    bool isRunning_ = false;
    std::stop_source stop_;
    QElapsedTimer clock_;
    QTimer tick_;
    QThreadPool pool_;
};

}  // namespace tamble
