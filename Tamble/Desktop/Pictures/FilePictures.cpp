#include <Tamble/Desktop/Pictures/FilePictures.h>

#include <TambleCore/Jobs/UndoRecord.h>

#include <fmt/format.h>

namespace tamble {
namespace {

/// Enough for a few screens of thumbnails and a few large previews.
constexpr int keptKibibytes = 160 << 10;
constexpr int atOnce = 2;

QByteArray keyOf(const FilePictures::Wanted& wanted) {
    const auto state = FileFingerprint::of(wanted.file);
    return QByteArray::fromStdString(fmt::format("{}|{}|{}|{}|{}|{:.4f}", static_cast<int>(wanted.kind),
                                                 wanted.page, wanted.pixels, wanted.file.native(),
                                                 state ? state->size : -1, state ? state->modified : 0.0));
}

}  // namespace

FilePictures::FilePictures(std::shared_ptr<WorkerPool> workers)
    : previewer_(std::move(workers)),
      kept_(keptKibibytes),
      pages_([this](const PageQueue::Page& first, int count, const auto& take, std::stop_token stop) {
          draw(first, count, take, stop);
      }) {
    pool_.setMaxThreadCount(atOnce);
}

FilePictures::~FilePictures() {
    pool_.clear();
    pool_.waitForDone();
}

QImage FilePictures::kept(const Wanted& wanted) {
    const QByteArray key = keyOf(wanted);
    const QMutexLocker lock(&mutex_);
    const QImage* kept = kept_.object(key);
    return kept == nullptr ? QImage() : *kept;
}

void FilePictures::keep(const QByteArray& key, const QImage& image) {
    const QMutexLocker lock(&mutex_);
    kept_.insert(key, std::make_unique<QImage>(image).release(),
                 std::max(1, static_cast<int>(image.sizeInBytes() >> 10)));
}

Secrets FilePictures::secrets() {
    const QMutexLocker lock(&mutex_);
    return secrets_;
}

QImage FilePictures::picture(const Wanted& wanted, std::stop_token stop) {
    if (stop.stop_requested()) return {};
    if (const QImage image = kept(wanted); !image.isNull()) return image;
    const QByteArray key = keyOf(wanted);
    try {
        const InputFile file{.url = FilePath(wanted.file), .root = FilePath(wanted.file.parent_path())};
        QImage image = imageOf(wanted.kind == Wanted::Kind::photo
                                   ? previewer_.photo(file, wanted.pixels, stop)
                                   : previewer_.page(file, wanted.page, wanted.pixels, secrets(), stop));
        keep(key, image);
        return image;
    } catch (const std::exception&) {
        return {};
    }
}

void FilePictures::draw(const PageQueue::Page& first, int count,
                        const std::function<void(int number, const QImage& picture)>& take,
                        std::stop_token stop) {
    const auto key = [&first](int page) {
        return keyOf({.kind = Wanted::Kind::page, .file = first.file, .page = page, .pixels = first.pixels});
    };
    const InputFile file{.url = FilePath(first.file), .root = FilePath(first.file.parent_path())};
    previewer_.drawPages(
        file, first.number, count, first.pixels, secrets(),
        [&](int page, const PreviewPicture& picture) {
            const QImage image = imageOf(picture);
            keep(key(page), image);
            take(page, image);
        },
        stop);
}

void FilePictures::setPassword(const std::string& password) {
    const QMutexLocker lock(&mutex_);
    secrets_.password = password;
}

void FilePictures::clear() {
    const QMutexLocker lock(&mutex_);
    kept_.clear();
}

QImage imageOf(const PreviewPicture& picture) {
    const auto format = picture.channels == 4 ? QImage::Format_RGBA8888 : QImage::Format_RGB888;
    const qsizetype stride = static_cast<qsizetype>(picture.width) * picture.channels;
    const QImage view(picture.samples.data(), picture.width, picture.height, stride, format);
    return view.convertToFormat(picture.channels == 4 ? QImage::Format_ARGB32_Premultiplied
                                                      : QImage::Format_RGB32);
}

}  // namespace tamble
