#include <Tamble/Desktop/Gallery/SampleFiles.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Samples/Scenes.h>

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Intake/FolderScanner.h>

#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <array>
#include <fstream>
#include <stdexcept>
#include <string_view>

#include <fmt/format.h>

namespace tamble::gallery {
namespace {

namespace fs = std::filesystem;
using samples::PictureSize;

constexpr PictureSize landscape{1800, 1200};
constexpr PictureSize portrait{1200, 1800};
constexpr int photoQuality = 90;

struct View {
    std::string_view name;
    samples::Scene scene;
    PictureSize size;
};

/// The first is the one that a tool shows.
constexpr std::array views{
    View{"sunset", samples::sunset, landscape}, View{"waves", samples::waves, landscape},
    View{"dunes", samples::dunes, portrait},    View{"hills", samples::hills, landscape},
    View{"night", samples::night, landscape},
};

QImage drawn(const View& view) {
    const auto pixels = samples::painted(view.scene, view.size, samples::Bands::rgb);
    return QImage(pixels.data(), view.size.width, view.size.height, 3 * view.size.width,
                  QImage::Format_RGB888)
        .copy();
}

void save(const QImage& image, const fs::path& file) {
    fs::create_directories(file.parent_path());
    if (!image.save(QString::fromStdString(file.native()), nullptr, photoQuality))
        throw std::runtime_error("couldn't write " + file.native());
}

/// The middle of a picture, as if taken from nearer by.
QImage nearer(const QImage& image) {
    const QSize size = image.size() * 2 / 3;
    return image.copy(QRect(QPoint(size.width() / 5, size.height() / 3), size));
}

std::vector<InputFile> filesIn(const fs::path& folder) {
    return FolderScanner(ScanOptions(true)).scan(std::array{folder}).files;
}

}  // namespace

fs::path SampleFiles::photos() const {
    const fs::path folder = home_ / "Pictures/Goa trip";
    constexpr std::array places{"Beach", ".", "Old town"};
    int number = 0;
    for (const View& view : views) {
        const QImage upright = drawn(view);
        for (const QImage& image : {upright, upright.mirrored(true, false), nearer(upright)}) {
            const auto name = fmt::format("goa-{:02}.jpg", ++number);
            save(image, (folder / places.at(static_cast<std::size_t>(number) % places.size()) / name)
                            .lexically_normal());
        }
    }
    return folder;
}

fs::path SampleFiles::damagedPhotos() const {
    const fs::path folder = photos();
    std::ofstream(folder / "IMG_2041.jpg") << "\xFF\xD8\xFF\xE0 and then the card was pulled out";
    fs::copy_file(folder / "goa-01.jpg", folder / "IMG_2042.jpg");
    fs::resize_file(folder / "IMG_2042.jpg", 400);
    return folder;
}

fs::path SampleFiles::longNames() const {
    const fs::path folder =
        home_ / "Pictures/All the photos that we took on the way from the station to the sea and back again";
    int number = 0;
    for (const View& view : views) {
        const auto name = fmt::format(
            "{:02} The {} as it was seen from the third window on the left, shortly before lunch, with the "
            "umbrella that Ada had lent us and that we gave back much later.jpg",
            ++number, view.name);
        save(drawn(view), folder / name);
    }
    return folder;
}

fs::path SampleFiles::manyPictures(int count) const {
    const fs::path folder = home_ / "Pictures/Camera";
    QImage dot(16, 16, QImage::Format_RGB888);
    dot.fill(Qt::darkCyan);
    const fs::path first = folder / "IMG_00001.jpg";
    save(dot, first);
    for (int number = 2; number <= count; ++number)
        fs::copy_file(first, folder / fmt::format("IMG_{:05}.jpg", number));
    return folder;
}

fs::path SampleFiles::album() const {
    const auto pictures = filesIn(photos());
    const ToolDefinition* tool = ToolCatalog::definition("pdf.fromImages");
    const fs::path file = home_ / "Documents/Album.pdf";
    fs::create_directories(file.parent_path());
    const ToolWork work = tool->makeWork(tool->defaults, {});
    std::get<std::unique_ptr<FileCombiner>>(work)->combine(pictures, file, {});
    return file;
}

fs::path SampleFiles::letter() const {
    const fs::path file = home_ / "Documents/Lease.pdf";
    fs::create_directories(file.parent_path());
    QPdfWriter writer(QString::fromStdString(file.native()));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(72);
    QPainter painter(&writer);
    const QRectF page(QPointF(20, 20), QSizeF(writer.width() - 40, writer.height() - 40));
    painter.setFont(QFont(QStringLiteral("Inter"), 18, QFont::Bold));
    painter.drawText(page, QStringLiteral("Lease of a beach hut"));
    painter.setFont(QFont(QStringLiteral("Inter"), 11));
    painter.drawText(page.adjusted(0, 60, 0, 0), Qt::TextWordWrap,
                     QStringLiteral("The hut with the number 12 is let from the first of June to the last of "
                                    "August.\n\nWhoever takes it keeps it dry, sweeps the sand out of it "
                                    "once a week, and leaves the key with the neighbour at number 14.\n\n"
                                    "The rent is paid in three parts. The deposit is given back when the "
                                    "key is."));
    painter.drawLine(QPointF(20, 420), QPointF(220, 420));
    painter.drawText(QPointF(20, 436), QStringLiteral("Signature"));
    return file;
}

}  // namespace tamble::gallery
