#pragma once

#include <Tamble/Model/ToolSession.h>

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <QtQmlIntegration>
#include <stop_token>

namespace tamble {

/// What a job is expected to do: how much its files will take, and how the first one is named.
class Forecast : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to a tool.")
    Q_PROPERTY(QString size READ size NOTIFY sizeChanged)
    Q_PROPERTY(QString change READ change NOTIFY sizeChanged)
    Q_PROPERTY(QString example READ example NOTIFY exampleChanged)

  public:
    explicit Forecast(std::shared_ptr<WorkerPool> workers, QObject* parent = nullptr);
    ~Forecast() override;

    /// The settings or the files are others than before. Null for no session.
    void update(const ToolSession* session);
    /// Only where to save is.
    void updateExample(const ToolSession* session);

    bool isEstimating() const { return isEstimating_; }
    /// "412 MB → estimating…", then "412 MB → about 96 MB"; empty for what cannot be told.
    QString size() const;
    /// "77 % smaller".
    QString change() const;
    /// "beach.jpg → beach.webp".
    QString example() const { return example_; }

  signals:
    void sizeChanged();
    void exampleChanged();

  private:
    void estimate();

    std::shared_ptr<WorkerPool> workers_;
    /// What is to be estimated; no tool for nothing.
    JobOrder order_;
    std::int64_t bytesBefore_ = 0;
    std::optional<std::int64_t> bytesAfter_;
    bool isEstimating_ = false;
    QString example_;
    std::stop_source estimating_;
    std::uint64_t exampleNumber_ = 0;
    QTimer pause_;
    QThreadPool pool_;
};

}  // namespace tamble
