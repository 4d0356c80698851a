#include <Tamble/Desktop/Models/FileListModel.h>
#include <Tamble/Desktop/Models/ResultModel.h>
#include <Tamble/Desktop/Models/ToolListModel.h>
#include <Tamble/Desktop/Support/StartText.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Model/JobTotals.h>

#include <TambleCore/Jobs/FolderSummary.h>

#include <map>

namespace tamble {
namespace {

const auto dot = QStringLiteral(" · ");

QString failureText(const ItemFailure& failure) {
    return texts::engine(failure.detail.empty() ? failure.code : failure.detail);
}

/// "84 saved, 1 skipped".
QString countsOf(const FolderSummary& folder) {
    QStringList parts;
    parts << ResultModel::tr("%n saved", nullptr, folder.done);
    if (folder.skipped > 0) parts << ResultModel::tr("%n skipped", nullptr, folder.skipped);
    if (folder.failed > 0) parts << ResultModel::tr("%n failed", nullptr, folder.failed);
    return parts.join(QStringLiteral(", "));
}

/// A sentence as a part of another.
QString withoutStop(QString sentence) {
    if (sentence.endsWith(QLatin1Char('.'))) sentence.chop(1);
    return sentence;
}

/// "1 skipped: Already in that format": each reason with how often it was met.
QStringList skipTexts(const JobResult& result) {
    std::map<QString, int> reasons;
    for (const ItemResult& item : result.items) {
        if (const auto* skipped = std::get_if<outcome::Skipped>(&item.outcome))
            ++reasons[withoutStop(texts::skipped(skipped->value))];
    }
    QStringList lines;
    for (const auto& [reason, count] : reasons) {
        lines << ResultModel::tr("%n skipped: %1", nullptr, count).arg(reason);
    }
    return lines;
}

RowsModel::Row rowOf(const InputFile& file, const QString& detail) {
    return {.title = texts::name(file.url.filename()),
            .detail = detail,
            .place = texts::place(file.url.parent_path()),
            .picture = pictureSource(file),
            .kind = kindSymbol(file)};
}

}  // namespace

void ResultModel::show(const FinishedJob& job, const ToolInfo& tool) {
    category_ = categoryName(tool.category);
    activityID_ = QString::fromStdString(job.activityID);
    describe(job.result, tool);
    list(job.result);
    emit changed();
}

void ResultModel::clear() {
    outputs_.clear();
    failed_.clear();
    activityID_.clear();
    for (RowsModel* rows : {&folders_, &failures_, &notes_}) rows->setRows({});
    emit changed();
}

void ResultModel::describe(const JobResult& result, const ToolInfo& tool) {
    const JobTotals totals = JobTotals::of(result);
    QStringList parts;
    if (result.wasCancelled) {
        title_ = tr("Stopped");
        parts << tr("Nothing was saved. Your files are as they were.");
    } else if (totals.done == 0) {
        title_ = totals.failed > 0 ? tr("That didn't work") : tr("Nothing to do");
    } else {
        title_ = texts::finished(tool.id, totals.done);
        if (result.undo.createdFiles.size() == 1 && totals.savedFolders == 0)
            parts << texts::place(result.undo.createdFiles.front());
        // Turning or renaming changes a few bytes that nobody asked about.
        const auto changed = std::abs(totals.bytesAfter - totals.bytesBefore);
        const bool changesSize = totals.bytesAfter > 0 && changed * 50 > totals.bytesBefore;
        if (changesSize)
            parts << tr("%1 → %2, %3")
                         .arg(texts::size(totals.bytesBefore), texts::size(totals.bytesAfter),
                              texts::change(totals.bytesBefore, totals.bytesAfter));
        if (totals.savedFolders > 0) parts << tr("%n new file(s)", nullptr, totals.saved);
    }
    if (!result.wasCancelled) {
        parts << skipTexts(result);
        if (totals.failed > 0) parts << tr("%n couldn't be done", nullptr, totals.failed);
    }
    subtitle_ = parts.join(dot);
    mood_ = result.wasCancelled || totals.done == 0
                ? (totals.failed > 0 ? QStringLiteral("sorry") : QStringLiteral("waiting"))
                : QStringLiteral("happy");
}

void ResultModel::list(const JobResult& result) {
    std::vector<RowsModel::Row> folders, failures, notes;
    failed_.clear();
    outputs_.clear();
    if (!result.wasCancelled) {
        for (const FolderSummary& folder : folderSummaries(result.items)) {
            folders.push_back({.title = folder.name ? texts::name(*folder.name) : tr("Single files"),
                               .detail = countsOf(folder),
                               .place = texts::place(folder.folderURL),
                               .depth = folder.depth});
        }
    }
    for (const ItemResult& item : result.items) {
        if (const auto* failed = std::get_if<outcome::Failed>(&item.outcome)) {
            failures.push_back(rowOf(item.file, failureText(failed->value)));
            failed_.push_back(item.file);
        } else if (const auto* done = std::get_if<outcome::Done>(&item.outcome);
                   done != nullptr && done->note) {
            notes.push_back(rowOf(item.file, texts::note(*done->note)));
        }
    }
    for (const FilePath& output : result.undo.createdFiles) outputs_.push_back(output);
    for (const RenamedItem& renamed : result.undo.renamedItems) outputs_.push_back(renamed.to);
    folders_.setRows(std::move(folders));
    failures_.setRows(std::move(failures));
    notes_.setRows(std::move(notes));
}

std::vector<std::filesystem::path> ResultModel::outputs() const {
    return outputs_;
}

std::vector<InputFile> ResultModel::failedFiles() const {
    return failed_;
}

}  // namespace tamble
