#include <Tamble/Desktop/Models/DocumentModel.h>
#include <Tamble/Desktop/Support/Background.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <TambleCore/Support/FileURL.h>

namespace tamble {

DocumentModel::DocumentModel(ToolModel& tool, std::shared_ptr<FilePictures> pictures, QObject* parent)
    : QObject(parent), tool_(tool), pictures_(std::move(pictures)) {
    pool_.setMaxThreadCount(1);
    connect(&tool_, &ToolModel::opened, this, [this] { ++openings_; });
    connect(&tool_, &ToolModel::inputsChanged, this, &DocumentModel::look);
}

DocumentModel::~DocumentModel() {
    opening_.request_stop();
    pool_.waitForDone();
}

void DocumentModel::setActive(bool active) {
    if (active == isActive_) return;
    isActive_ = active;
    emit changed();
    look();
}

DocumentModel::Source DocumentModel::source() const {
    Source source{.opening = openings_};
    if (!tool_.isOpen() || tool_.session()->files().size() != 1) return source;
    source.file = tool_.session()->files().front().url;
    source.fingerprint = FileFingerprint::of(source.file);
    source.password = tool_.session()->secrets.password;
    return source;
}

void DocumentModel::look() {
    Source wanted = source();
    // One that nobody looks at stays as it is, but goes with its file.
    if (wanted == source_ || (!isActive_ && !wanted.file.empty())) return;
    opening_.request_stop();
    opening_ = std::stop_source();
    source_ = std::move(wanted);
    pages_.clear();
    sentence_.clear();
    state_ = source_.file.empty() ? Nothing : Opening;
    emit changed();
    emit replaced();
    if (state_ == Nothing) return;
    inBackground(
        pool_, this,
        [pictures = pictures_, source = source_, stop = opening_.get_token()] {
            Opened opened;
            Secrets secrets;
            secrets.password = source.password;
            try {
                const InputFile file{.url = FilePath(source.file),
                                     .root = FilePath(source.file.parent_path())};
                opened.pages = pictures->previewer().pages(file, secrets, stop);
            } catch (const Failure& failure) {
                opened.state = asksForPassword(failure) ? Locked : Failed;
                opened.sentence = texts::engine(failure.sentence());
            } catch (const std::exception&) {
                opened.state = Failed;  // it was stopped, or the place for previews cannot be written
            }
            return opened;
        },
        [this, stop = opening_.get_token()](Opened opened) {
            if (!stop.stop_requested()) show(std::move(opened));
        });
}

void DocumentModel::show(Opened opened) {
    pages_ = std::move(opened.pages);
    state_ = opened.state;
    sentence_ = opened.sentence;
    emit changed();
    emit replaced();
}

QString DocumentModel::picture(int page) const {
    return QStringLiteral("page/%1/%2")
        .arg(page)
        .arg(QString::fromStdString(percentEncoded(source_.file.native())));
}

double DocumentModel::ratio(int page) const {
    if (page < 0 || page >= pageCount()) return 1;
    const PreviewPage& size = pages_[static_cast<std::size_t>(page)];
    return size.width / size.height;
}

void DocumentModel::unlock(const QString& password) {
    if (!tool_.isOpen()) return;
    tool_.session()->secrets.password = password.toStdString();
    tool_.change(Json::object());
}

}  // namespace tamble
