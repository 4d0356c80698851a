#include <Tamble/Desktop/Pictures/FilePictures.h>

#include <TambleCore/Support/FileURL.h>

#include <QPainter>
#include <QPainterPath>
#include <QStringList>

namespace tamble {
namespace {

struct Request {
    FilePictures::Wanted wanted;
    /// Of a thumbnail, whose size is then exactly this one.
    std::optional<double> radius;
    QSize size;
};

constexpr int usualSide = 256;

/// A photo is asked for larger than a thumbnail, so that it fills the shorter side as well; a panorama more
/// than twice as long as high is drawn a little softer.
constexpr int sizes = 2;

std::optional<Request> parsed(const QString& id, const QSize& requestedSize) {
    Request request;
    QString rest = id;
    const auto take = [&rest] {
        const QString first = rest.section(QLatin1Char('/'), 0, 0);
        rest = rest.section(QLatin1Char('/'), 1);
        return first;
    };
    QString kind = take();
    if (kind == QLatin1String("thumb")) {
        request.radius = take().toDouble();
        kind = take();
    }
    request.size = requestedSize.isEmpty() ? QSize(usualSide, usualSide) : requestedSize;
    request.wanted.kind =
        kind == QLatin1String("photo") ? FilePictures::Wanted::Kind::photo : FilePictures::Wanted::Kind::page;
    if (kind == QLatin1String("page")) request.wanted.page = take().toInt();
    request.wanted.pixels =
        std::min(longestPreviewSide,
                 std::max(request.size.width(), request.size.height()) * (request.radius ? sizes : 1));
    const auto path = percentDecoded(rest.toStdString());
    if (!path) return std::nullopt;
    request.wanted.file = *path;
    return request;
}

/// Cut to fill the size, with round corners; of a page its upper part.
QImage thumbnail(const QImage& picture, const Request& request) {
    QImage result(request.size, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    if (picture.isNull()) return result;
    QPainter painter(&result);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(QPointF(), request.size), *request.radius, *request.radius);
    painter.setClipPath(shape);
    const QSize filled = picture.size().scaled(request.size, Qt::KeepAspectRatioByExpanding);
    const int top = request.wanted.kind == FilePictures::Wanted::Kind::page
                        ? 0
                        : (request.size.height() - filled.height()) / 2;
    painter.drawImage(QRect(QPoint((request.size.width() - filled.width()) / 2, top), filled), picture);
    return result;
}

QImage seeThroughPixel() {
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(Qt::transparent);
    return pixel;
}

/// Is deleted by the toolkit once it has answered, also when its picture is no longer wanted.
class Response final : public QQuickImageResponse {
  public:
    // Shares no ownership: the toolkit forgets those that are under way when the window goes, and the
    // pictures wait for their threads.
    Response(FilePictures& pictures, std::optional<Request> request)
        : pictures_(pictures), request_(std::move(request)) {}

    void begin() {
        if (request_ && request_->wanted.kind == FilePictures::Wanted::Kind::page) return beginPage();
        pictures_.pool().start([this, stop = stop_.get_token()] {
            finish(request_ ? pictures_.picture(request_->wanted, stop) : QImage());
        });
    }
    QQuickTextureFactory* textureFactory() const override {
        return QQuickTextureFactory::textureFactoryForImage(image_);
    }
    void cancel() override {
        stop_.request_stop();
        // Later: whoever cancels holds a lock that the answer takes.
        if (number_ && pictures_.pages().cancel(*number_)) finishSoon();
    }

  private:
    void beginPage() {
        const FilePictures::Wanted& wanted = request_->wanted;
        if (const QImage kept = pictures_.kept(wanted); !kept.isNull()) {
            hold(kept);
            return finishSoon();
        }
        number_ = pictures_.pages().want({wanted.file, wanted.page, wanted.pixels},
                                          [this](const QImage& picture) { finish(picture); });
    }
    void hold(const QImage& picture) {
        if (!picture.isNull()) image_ = request_->radius ? thumbnail(picture, *request_) : picture;
    }
    void finish(const QImage& picture) {
        hold(picture);
        emit finished();
    }
    /// Not before whoever asked listens.
    void finishSoon() {
        QMetaObject::invokeMethod(this, &QQuickImageResponse::finished, Qt::QueuedConnection);
    }

    FilePictures& pictures_;
    std::optional<Request> request_;
    std::stop_source stop_;
    std::optional<std::uint64_t> number_;
    /// What cannot be shown is a see-through pixel: an error would be written to the terminal.
    QImage image_ = seeThroughPixel();
};

}  // namespace

QQuickImageResponse* FilePictureProvider::requestImageResponse(const QString& id,
                                                               const QSize& requestedSize) {
    auto response = std::make_unique<Response>(*pictures_, parsed(id, requestedSize));
    response->begin();
    return response.release();
}

}  // namespace tamble
