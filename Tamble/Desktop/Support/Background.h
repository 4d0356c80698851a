#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>
#include <memory>

namespace tamble {

/// Runs `work` on the pool, and then `done` with what it answered on the main thread, unless `receiver`,
/// which lives there, is gone by then. `work` must not throw.
template <typename Work, typename Done>
void inBackground(QThreadPool& pool, QObject* receiver, Work work, Done done) {
    pool.start([alive = QPointer<QObject>(receiver), work = std::make_shared<Work>(std::move(work)),
                done = std::make_shared<Done>(std::move(done))] {
        auto result = std::make_shared<decltype((*work)())>((*work)());
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [alive, done, result] {
                if (alive) (*done)(std::move(*result));
            },
            Qt::QueuedConnection);
    });
}

}  // namespace tamble
