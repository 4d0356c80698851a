#pragma once

#include <QObject>
#include <QThreadPool>
#include <QtConcurrent>

namespace tamble {

/// Runs `work` on the pool, and then `done` with what it answered on the thread of `receiver`, unless that is
/// gone by then. `work` must not throw.
template <typename Work, typename Done>
void inBackground(QThreadPool& pool, QObject* receiver, Work work, Done done) {
    QtConcurrent::run(&pool, std::move(work)).then(receiver, std::move(done));
}

}  // namespace tamble
