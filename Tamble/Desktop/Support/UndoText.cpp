#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Desktop/Support/UndoText.h>

#include <QCoreApplication>
#include <QStringList>

namespace tamble::texts {
namespace {

struct Undo {
    Q_DECLARE_TR_FUNCTIONS(Undo)
};

QString namesBack(const UndoReport& report) {
    QString text = Undo::tr("%n file(s) have their old names again.", nullptr, report.restoredItems);
    if (report.problems > 0)
        text += QLatin1Char(' ') +
                Undo::tr("%n file(s) couldn't get their old names back.", nullptr, report.problems);
    return text;
}

int count(const auto& list) {
    return static_cast<int>(list.size());
}

}  // namespace

QString undone(const UndoReport& report, const UndoRecord& record) {
    if (isOfRenames(record)) return namesBack(report);
    QStringList parts;
    // What did not happen is left out, but something is always said.
    if (report.removedOutputs > 0 && report.restoredItems > 0) {
        parts << Undo::tr("%n new files removed,", nullptr, report.removedOutputs);
    } else if (report.restoredItems == 0) {
        parts << Undo::tr("%n new files removed.", nullptr, report.removedOutputs);
    }
    if (report.restoredItems > 0) parts << Undo::tr("%n files put back.", nullptr, report.restoredItems);
    if (report.problems > 0)
        parts << Undo::tr("%n items couldn't be put back (the Bin may have been emptied).", nullptr,
                          report.problems);
    if (report.keptBecauseChanged > 0)
        parts << Undo::tr("%n new files were changed after the job, so they were kept.", nullptr,
                          report.keptBecauseChanged);
    return parts.join(QLatin1Char(' '));
}

QString interrupted(const RecoveredJob& job) {
    const QString about = subject(job.entry.subject);
    const UndoRecord& undo = job.entry.undo;
    switch (job.outcome) {
        case RecoveredJob::Outcome::namesPutBack:
            return Undo::tr("Renaming “%1” was interrupted. All files have their old names.").arg(about);
        case RecoveredJob::Outcome::namesNotBack:
            return Undo::tr(
                       "Renaming “%1” was interrupted, and %n file(s) couldn't get their old names back. The "
                       "next start tries it again.",
                       nullptr, count(job.stranded))
                .arg(about);
        case RecoveredJob::Outcome::logged:
            break;
    }
    if (isOfRenames(undo))
        return Undo::tr("Renaming “%1” was interrupted when %n file(s) had their new names.", nullptr,
                        count(undo.renamedItems))
            .arg(about);
    QString text = Undo::tr("A job over “%1” was interrupted while it saved.").arg(about);
    text += QLatin1Char(' ') + Undo::tr("%n new file(s) were saved.", nullptr, job.entry.doneCount);
    if (!undo.trashedItems.empty())
        text += QLatin1Char(' ') + Undo::tr("%n original(s) are in the Bin.", nullptr, count(undo.trashedItems));
    return text + QLatin1Char(' ') + Undo::tr("You can put everything back.");
}

}  // namespace tamble::texts
