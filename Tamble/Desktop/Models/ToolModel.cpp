#include <Tamble/Desktop/Models/ToolListModel.h>
#include <Tamble/Desktop/Models/ToolModel.h>
#include <Tamble/Desktop/Support/StartText.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Model/GoneFiles.h>

#include <TambleCore/Support/Json/Described.h>

namespace tamble {
namespace {

QString fromText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

ToolModel::ToolModel(PreferencesStore& preferences, std::shared_ptr<WorkerPool> workers, QObject* parent)
    : QObject(parent), save_(preferences), forecast_(std::move(workers)) {
    connect(&files_, &FileListModel::changed, this, &ToolModel::filesChanged);
    connect(&panel_, &PanelModel::changed, this, &ToolModel::settingsChanged);
    connect(&save_, &SaveModel::changed, this, [this] {
        emit changed();
        forecast_.updateExample(session_.get());
    });
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
    session_->add(files);
    const bool fits = std::ranges::any_of(files, session_->definition().accepts, &InputFile::contentType);
    setNotice(fits || files.empty() ? QString()
                                    : tr("None of these files is of a kind that this tool works with."));
    files_.refresh();
    filesChanged();
}

void ToolModel::removeGone() {
    if (!isOpen()) return;
    const auto gone = goneFiles(session_->files());
    if (gone.empty()) return;
    session_->remove(gone);
    files_.refresh();
    filesChanged();
}

void ToolModel::close() {
    forecast_.update(nullptr);
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
    forecast_.update(session_.get());
}

void ToolModel::setNotice(const QString& notice) {
    notice_ = notice;
    emit noticeChanged();
}

}  // namespace tamble
