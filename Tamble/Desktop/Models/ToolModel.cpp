#include <Tamble/Desktop/Models/ToolListModel.h>
#include <Tamble/Desktop/Models/ToolModel.h>
#include <Tamble/Desktop/Support/Background.h>
#include <Tamble/Desktop/Support/StartText.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Model/ProtectedWork.h>

#include <TambleCore/Support/Json/Described.h>

namespace tamble {
namespace {

/// Typing and dragging change things faster than it is worth estimating.
constexpr int pauseBeforeEstimate = 250;

QString fromText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

ToolModel::ToolModel(PreferencesStore& preferences, std::shared_ptr<WorkerPool> workers, QObject* parent)
    : QObject(parent), workers_(std::move(workers)), save_(preferences) {
    pool_.setMaxThreadCount(2);
    pause_.setSingleShot(true);
    pause_.setInterval(pauseBeforeEstimate);
    connect(&pause_, &QTimer::timeout, this, &ToolModel::beginEstimate);
    connect(&files_, &FileListModel::changed, this, &ToolModel::filesChanged);
    connect(&panel_, &PanelModel::changed, this, &ToolModel::settingsChanged);
    connect(&save_, &SaveModel::changed, this, [this] {
        emit changed();
        beginExample();
    });
}

ToolModel::~ToolModel() {
    estimating_.request_stop();
    pool_.waitForDone();
}

void ToolModel::open(const ToolInfo& tool, std::span<const InputFile> files) {
    // Models let go of the old session before it ends.
    auto next = std::make_unique<ToolSession>(tool);
    next->add(files);
    files_.show(next.get());
    panel_.show(next.get());
    save_.show(next.get());
    session_ = std::move(next);
    setNotice({});
    emit opened();
    filesChanged();
}

void ToolModel::add(std::span<const InputFile> files) {
    if (!isOpen()) return;
    const std::size_t taken = session_->add(files);
    setNotice(taken > 0 || files.empty() ? QString()
                                         : tr("None of these files is of a kind that this tool works with."));
    files_.refresh();
    filesChanged();
}

void ToolModel::close() {
    estimating_.request_stop();
    files_.show(nullptr);
    panel_.show(nullptr);
    save_.show(nullptr);
    session_.reset();
    emit opened();
    emit changed();
    emit inputsChanged();
}

JobOrder ToolModel::order(int maxConcurrent) {
    save_.remember();
    return session_->order(today(), maxConcurrent);
}

QString ToolModel::toolID() const {
    return isOpen() ? fromText(session_->info().id) : QString();
}

QString ToolModel::title() const {
    return isOpen() ? texts::engine(session_->info().title) : QString();
}

QString ToolModel::subtitle() const {
    return isOpen() ? texts::engine(session_->info().subtitle) : QString();
}

QString ToolModel::symbol() const {
    return isOpen() ? fromText(session_->info().symbol) : QString();
}

QString ToolModel::category() const {
    return isOpen() ? categoryName(session_->info().category) : QString();
}

QString ToolModel::editor() const {
    return isOpen() ? fromText(caseName(session_->definition().panel.editor)) : QString();
}

QString ToolModel::invitation() const {
    return isOpen() ? texts::engine(session_->definition().panel.invitation) : QString();
}

QString ToolModel::summary() const {
    if (!isOpen() || session_->files().empty()) return subtitle();
    const auto& files = session_->files();
    return texts::files(KindCounts::of(files), files.size()) + QStringLiteral(" · ") +
           texts::size(session_->inputBytes());
}

QString ToolModel::missing() const {
    return isOpen() && !session_->files().empty() ? texts::engine(session_->missing()) : QString();
}

QString ToolModel::startText() const {
    if (!isOpen()) return {};
    return session_->files().empty() ? title() : texts::start(*session_);
}

bool ToolModel::canStart() const {
    return isOpen() && !session_->files().empty() && session_->missing().empty();
}

QString ToolModel::estimate() const {
    if (!isOpen() || session_->files().empty()) return {};
    const QString before = texts::size(session_->inputBytes());
    if (isEstimating_) return tr("%1 → estimating…").arg(before);
    return estimatedBytes_ ? tr("%1 → about %2").arg(before, texts::size(*estimatedBytes_)) : QString();
}

QString ToolModel::estimatedChange() const {
    return estimatedBytes_ && !isEstimating_ && isOpen()
               ? texts::change(session_->inputBytes(), *estimatedBytes_)
               : QString();
}

void ToolModel::change(const Json& changes) {
    if (!isOpen()) return;
    session_->change(changes);
    panel_.refresh();
    settingsChanged();
}

void ToolModel::filesChanged() {
    panel_.refresh();
    save_.sourcesChanged();
    settingsChanged();
}

void ToolModel::settingsChanged() {
    emit changed();
    emit inputsChanged();
    estimating_.request_stop();
    estimatedBytes_.reset();
    isEstimating_ = isOpen() && session_->definition().estimate && !session_->files().empty();
    emit estimateChanged();
    if (isEstimating_) pause_.start();
    beginExample();
}

void ToolModel::beginEstimate() {
    if (!isOpen() || session_->files().empty()) return;
    estimating_ = std::stop_source();
    inBackground(
        pool_, this,
        [tool = &session_->definition(), files = session_->files(), settings = session_->settings(),
         workers = workers_, stop = estimating_.get_token()] {
            return protectedEstimate(*tool, files, settings, *workers, stop);
        },
        [this, stop = estimating_.get_token()](std::optional<std::int64_t> bytes) {
            if (stop.stop_requested()) return;
            estimatedBytes_ = bytes;
            isEstimating_ = false;
            emit estimateChanged();
        });
}

void ToolModel::beginExample() {
    const std::uint64_t number = ++exampleNumber_;
    if (!isOpen() || session_->files().empty() ||
        (session_->renames() && session_->renameWay == RenameWay::inPlace)) {
        example_.clear();
        emit exampleChanged();
        return;
    }
    JobOrder order = session_->order(today(), 0);
    // One file tells how the others are named, but a tool that makes one of all names it after all.
    if (!session_->combines()) order.files.resize(1);
    inBackground(
        pool_, this,
        [order = std::move(order)] { return texts::example(order, JobRunner(nullptr).plan(order)); },
        [this, number](const QString& example) {
            if (number != exampleNumber_) return;
            example_ = example;
            emit exampleChanged();
        });
}

void ToolModel::setNotice(const QString& notice) {
    notice_ = notice;
    emit noticeChanged();
}

}  // namespace tamble
