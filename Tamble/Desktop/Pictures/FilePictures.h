#pragma once

#include <Tamble/Desktop/Pictures/PageQueue.h>

#include <TambleCore/Previews/Previewer.h>

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QQuickAsyncImageProvider>
#include <QThreadPool>

namespace tamble {

/// Pictures of files, made by worker processes off the window's threads and kept as long as there is room. To
/// be used from any thread.
class FilePictures {
  public:
    explicit FilePictures(std::shared_ptr<WorkerPool> workers);
    ~FilePictures();

    /// What a picture shows.
    struct Wanted {
        enum class Kind { photo, page };
        Kind kind = Kind::photo;
        std::filesystem::path file;
        /// Counted from 0.
        int page = 0;
        /// Its longest side at most.
        int pixels = 256;
    };
    /// Empty after a stop request, and for what cannot be shown.
    QImage picture(const Wanted& wanted, std::stop_token stop);

    /// What was made of it before and is still there.
    QImage kept(const Wanted& wanted);
    /// Keeps what it draws.
    PageQueue& pages() { return pages_; }

    /// Opens locked PDFs.
    void setPassword(const std::string& password);
    /// Lets go of all pictures.
    void clear();

    const Previewer& previewer() const { return previewer_; }
    QThreadPool& pool() { return pool_; }

  private:
    void keep(const QByteArray& key, const QImage& image);
    Secrets secrets();
    void draw(const PageQueue::Page& first, int count,
              const std::function<void(int number, const QImage& picture)>& take, std::stop_token stop);

    Previewer previewer_;
    QMutex mutex_;
    Secrets secrets_;
    /// By what is wanted and the file's state, in kibibytes.
    QCache<QByteArray, QImage> kept_;
    QThreadPool pool_;
    PageQueue pages_;
};

/// Plain samples as a picture that can be drawn.
QImage imageOf(const PreviewPicture& picture);

/// "image://file/photo/PATH", "image://file/page/NUMBER/PATH" with the path percent-encoded; before these
/// "thumb/RADIUS/" for one that is cut to fill the size asked for, with round corners.
class FilePictureProvider final : public QQuickAsyncImageProvider {
  public:
    explicit FilePictureProvider(std::shared_ptr<FilePictures> pictures) : pictures_(std::move(pictures)) {}
    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

  private:
    std::shared_ptr<FilePictures> pictures_;
};

}  // namespace tamble
