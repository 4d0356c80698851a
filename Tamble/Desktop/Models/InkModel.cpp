#include <Tamble/Desktop/Models/InkModel.h>
#include <Tamble/Desktop/Pictures/InkPicture.h>
#include <Tamble/Desktop/Support/Background.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Model/InkFromPhoto.h>

namespace tamble {
namespace {

constexpr int picturePixels = 1600;

}  // namespace

InkModel::InkModel(std::shared_ptr<FilePictures> pictures, QObject* parent)
    : QObject(parent), pictures_(std::move(pictures)) {
    pool_.setMaxThreadCount(1);
    clock_.start();
}

InkModel::~InkModel() {
    reading_.request_stop();
    pool_.waitForDone();
}

void InkModel::setBlue(bool blue) {
    isBlue_ = blue;
    emit changed();
}

void InkModel::setKeeps(bool keeps) {
    keeps_ = keeps;
    emit changed();
}

QColor InkModel::color() const {
    return isBlue_ ? QColor(0x1B, 0x3F, 0xA8) : QColor(0x14, 0x14, 0x1C);
}

void InkModel::begin(double x, double y) {
    pen_.begin(x, y, now());
    strokes_.push_back(pen_.stroke());
    emit changed();
}

void InkModel::extend(double x, double y) {
    if (strokes_.empty()) return;
    pen_.add(x, y, now());
    strokes_.back() = pen_.stroke();
    emit changed();
}

void InkModel::end(double x, double y) {
    if (strokes_.empty()) return;
    pen_.end(x, y, now());
    strokes_.back() = pen_.stroke();
    emit changed();
}

void InkModel::undo() {
    if (!strokes_.empty()) strokes_.pop_back();
    emit changed();
}

void InkModel::clear() {
    strokes_.clear();
    emit changed();
}

void InkModel::use() {
    if (strokes_.empty()) return;
    emit made(pngOf(inkPicture(strokes_, color())), strokes_);
    clear();
}

void InkModel::read(const QUrl& picture) {
    const auto path = pathOf(picture);
    if (!path || isBusy_) return;
    isBusy_ = true;
    emit changed();
    inBackground(
        pool_, this,
        [pictures = pictures_, path = *path, stop = reading_.get_token()] {
            Read read;
            try {
                const InputFile file{.url = FilePath(path), .root = FilePath(path.parent_path())};
                const auto ink = inkFromPhoto(pictures->previewer().photo(file, picturePixels, stop));
                if (ink) read.picture = imageOf(*ink);
            } catch (const Failure& failure) {
                read.sentence = texts::engine(failure.sentence());
            } catch (const std::exception&) {
                // It was stopped, or the place for previews cannot be written.
            }
            return read;
        },
        [this](const Read& read) { took(read); });
}

void InkModel::took(const Read& read) {
    isBusy_ = false;
    emit changed();
    if (!read.picture.isNull()) {
        emit made(pngOf(read.picture), {});
    } else {
        emit failed(read.sentence.isEmpty() ? tr("There is no writing to be seen in this picture.")
                                            : read.sentence);
    }
}

}  // namespace tamble
