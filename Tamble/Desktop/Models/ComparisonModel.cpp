#include <Tamble/Desktop/Models/ComparisonModel.h>
#include <Tamble/Desktop/Support/Background.h>
#include <Tamble/Desktop/Support/Texts.h>

namespace tamble {
namespace {

constexpr int pauseBeforeMaking = 200;

}  // namespace

ComparisonModel::ComparisonModel(ToolModel& tool, std::shared_ptr<FilePictures> pictures, QObject* parent)
    : QObject(parent), tool_(tool), pictures_(std::move(pictures)) {
    pool_.setMaxThreadCount(1);
    pause_.setSingleShot(true);
    pause_.setInterval(pauseBeforeMaking);
    connect(&pause_, &QTimer::timeout, this, &ComparisonModel::begin);
    connect(&tool_, &ToolModel::inputsChanged, this, &ComparisonModel::invalidate);
    connect(&tool_, &ToolModel::opened, this, [this] { setRow(0); });
}

ComparisonModel::~ComparisonModel() {
    making_.request_stop();
    pool_.waitForDone();
}

const InputFile* ComparisonModel::file() const {
    if (!tool_.isOpen()) return nullptr;
    const auto& files = tool_.session()->files();
    const auto at = static_cast<std::size_t>(row_);
    return at < files.size() ? &files[at] : nullptr;
}

void ComparisonModel::setRow(int row) {
    row_ = std::max(0, row);
    invalidate();
}

void ComparisonModel::setActive(bool active) {
    if (active == isActive_) return;
    isActive_ = active;
    invalidate();
}

void ComparisonModel::invalidate() {
    making_.request_stop();
    if (file() == nullptr && tool_.isOpen() && !tool_.session()->files().empty())
        row_ = static_cast<int>(tool_.session()->files().size()) - 1;
    result_.reset();
    remark_.clear();
    isBusy_ = isActive_ && file() != nullptr;
    if (isBusy_) {
        pause_.start();
    } else {
        pause_.stop();
    }
    emit changed();
}

void ComparisonModel::begin() {
    if (file() == nullptr) return;
    making_ = std::stop_source();
    const ToolSession& session = *tool_.session();
    inBackground(
        pool_, this,
        [pictures = pictures_, tool = &session.definition(), settings = session.settings(),
         secrets = session.secrets, input = *file(), stop = making_.get_token()] {
            Made made;
            try {
                made.result = std::make_shared<PreviewResult>(
                    pictures->previewer().result(*tool, settings, secrets, input, stop));
                if (made.result->skipped()) made.remark = texts::skipped(*made.result->skipped());
            } catch (const Failure& failure) {
                made.remark = texts::engine(failure.sentence());
            } catch (const std::exception&) {
                // It was stopped, or the place for previews cannot be written: the original is shown alone.
            }
            return made;
        },
        [this, stop = making_.get_token()](Made made) {
            if (stop.stop_requested()) return;
            isBusy_ = false;
            result_ = std::move(made.result);
            remark_ = made.remark;
            emit changed();
        });
}

QString ComparisonModel::original() const {
    return file() == nullptr ? QString() : pictureSource(*file());
}

QString ComparisonModel::originalText() const {
    return file() == nullptr ? QString() : tr("Original · %1").arg(texts::size(file()->byteSize));
}

QString ComparisonModel::result() const {
    return result_ == nullptr || result_->files().empty() ? QString()
                                                          : pictureSource(result_->files().front());
}

QString ComparisonModel::resultText() const {
    if (isBusy_) return tr("Working it out…");
    if (result_ == nullptr || result_->files().empty() || file() == nullptr) return {};
    const QString kind = texts::name(result_->files().front().url.extension()).mid(1).toUpper();
    const QString change = texts::change(file()->byteSize, result_->byteSize());
    return kind + QStringLiteral(" · ") + texts::size(result_->byteSize()) +
           (change.isEmpty() ? QString() : QStringLiteral(" · ") + change);
}

bool ComparisonModel::isSmaller() const {
    return result_ != nullptr && file() != nullptr && result_->byteSize() <= file()->byteSize;
}

}  // namespace tamble
