#include <Tamble/Desktop/Models/ActivityModel.h>
#include <Tamble/Desktop/Models/ToolListModel.h>
#include <Tamble/Desktop/Support/Background.h>
#include <Tamble/Desktop/Support/StartText.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Desktop/Support/UndoText.h>
#include <Tamble/Model/JobRunner.h>

#include <TambleCore/Jobs/StagingFolder.h>
#include <TambleCore/Platform/SystemFileOperations.h>

namespace tamble {

ActivityModel::ActivityModel(QObject* parent) : QAbstractListModel(parent), store_(systemEngine()) {
    log_.setMaxThreadCount(1);
    log_.setExpiryTimeout(-1);
}

ActivityModel::~ActivityModel() {
    // An undo that has begun is brought to its end.
    log_.waitForDone();
}

std::vector<ActivityModel::Row> ActivityModel::readRows() {
    std::vector<Row> rows;
    for (const ActivityEntry& entry : store_.entries()) {
        rows.push_back({.id = entry.id,
                        .date = entry.date,
                        .toolID = entry.toolID,
                        .subject = texts::subject(entry.subject),
                        .done = entry.doneCount,
                        .skipped = entry.skippedCount,
                        .failed = entry.failedCount,
                        .bytesBefore = entry.inputBytes,
                        .bytesAfter = entry.outputBytes,
                        .undone = entry.undone});
    }
    return rows;
}

void ActivityModel::reload() {
    inBackground(
        log_, this,
        [this] {
            store_.load();
            return readRows();
        },
        [this](std::vector<Row> rows) { take(std::move(rows)); });
}

void ActivityModel::recover() {
    inBackground(
        log_, this,
        [this] {
            SystemFileOperations fileOps;
            auto jobs = recoverInterruptedJobs(store_, fileOps);
            if (!jobs.empty()) removeStaleStagingFolders();
            return jobs;
        },
        [this](const std::vector<RecoveredJob>& jobs) {
            reload();
            for (const RecoveredJob& job : jobs) {
                const bool canUndo = job.outcome == RecoveredJob::Outcome::logged;
                emit interrupted(texts::interrupted(job),
                                 canUndo ? QString::fromStdString(job.entry.id) : QString());
            }
        });
}

void ActivityModel::take(std::vector<Row> rows) {
    if (isLoaded_ && rows == rows_) return;
    beginResetModel();
    rows_ = std::move(rows);
    isLoaded_ = true;
    endResetModel();
    emit countChanged();
}

int ActivityModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ActivityModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    const ToolInfo* tool = ToolCatalog::withID(row.toolID);
    switch (role) {
        case entryID:
            return QString::fromStdString(row.id);
        case title:
            return texts::finished(row.toolID, row.done);
        case subject:
            return row.subject;
        case sizes:
            return row.bytesAfter == 0 ? QString()
                                       : QStringLiteral("%1 → %2").arg(texts::size(row.bytesBefore),
                                                                       texts::size(row.bytesAfter));
        case time:
            return texts::timeAgo(row.date);
        case symbol:
            return tool == nullptr
                       ? QStringLiteral("ui.file")
                       : QString::fromUtf8(tool->symbol.data(), static_cast<qsizetype>(tool->symbol.size()));
        case category:
            return categoryName(tool == nullptr ? ToolCategory::files : tool->category);
        case isUndone:
            return row.undone;
        case isUndoing:
            return undoing_.contains(row.id);
        case report:
            return reportOf(QString::fromStdString(row.id));
        case canShow:
            return !row.undone && row.done > 0;
        case details:
            return detailsOf(row);
        default:
            return {};
    }
}

QHash<int, QByteArray> ActivityModel::roleNames() const {
    return {{entryID, "entryID"},     {title, "title"},   {subject, "subject"},   {sizes, "sizes"},
            {time, "time"},           {symbol, "symbol"}, {category, "category"}, {isUndone, "isUndone"},
            {isUndoing, "isUndoing"}, {report, "report"}, {canShow, "canShow"},   {details, "details"}};
}

QString ActivityModel::detailsOf(const Row& row) const {
    if (row.undone) return tr("This job was undone from Activity.");
    QStringList parts;
    parts << tr("%n saved", nullptr, row.done);
    if (row.skipped > 0) parts << tr("%n skipped", nullptr, row.skipped);
    if (row.failed > 0) parts << tr("%n failed", nullptr, row.failed);
    return parts.join(QStringLiteral(", "));
}

void ActivityModel::undo(const QString& id) {
    const std::string key = id.toStdString();
    if (key.empty() || isUndoneOrUndoing(id)) return;
    undoing_.insert(key);
    rowChanged(key);
    inBackground(
        log_, this,
        [this, key] {
            store_.load();
            const ActivityEntry* entry = store_.entry(key);
            const UndoRecord record = entry == nullptr ? UndoRecord{} : entry->undo;
            const auto done = store_.undo(key);
            return done ? std::optional(texts::undone(*done, record)) : std::nullopt;
        },
        [this, key, id](const std::optional<QString>& text) {
            undoing_.erase(key);
            // Somebody else undid it or forgot it meanwhile.
            if (!text) return reload();
            reports_[key] = *text;
            for (Row& row : rows_) {
                if (row.id == key) row.undone = true;
            }
            rowChanged(key);
            emit undone(id, *text);
        });
}

void ActivityModel::clear() {
    inBackground(
        log_, this,
        [this] {
            store_.load();
            store_.clear();
            return readRows();
        },
        [this](std::vector<Row> rows) { take(std::move(rows)); });
}

void ActivityModel::showInFolder(const QString& id) {
    inBackground(
        log_, this,
        [this, key = id.toStdString()] {
            const ActivityEntry* entry = store_.entry(key);
            std::vector<std::filesystem::path> files;
            if (entry == nullptr) return files;
            for (const FilePath& output : entry->outputFiles) files.emplace_back(output);
            for (const RenamedItem& item : entry->undo.renamedItems) files.emplace_back(item.to);
            return files;
        },
        [this](const std::vector<std::filesystem::path>& files) { emit showRequested(files); });
}

QString ActivityModel::reportOf(const QString& id) const {
    const auto found = reports_.find(id.toStdString());
    return found == reports_.end() ? QString() : found->second;
}

bool ActivityModel::isUndoneOrUndoing(const QString& id) const {
    const std::string key = id.toStdString();
    const auto row = std::ranges::find(rows_, key, &Row::id);
    return undoing_.contains(key) || (row != rows_.end() && row->undone);
}

void ActivityModel::rowChanged(const std::string& id) {
    const auto row = std::ranges::find(rows_, id, &Row::id);
    if (row == rows_.end()) return;
    const QModelIndex at = index(static_cast<int>(row - rows_.begin()));
    emit dataChanged(at, at);
}

}  // namespace tamble
