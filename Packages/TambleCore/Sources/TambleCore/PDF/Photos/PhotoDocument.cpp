#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Photos/PhotoDocument.h>
#include <TambleCore/PDF/Photos/PhotoLayout.h>
#include <TambleCore/PDF/Photos/PhotoWriting.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace tamble::pdf {
namespace {

class PhotoWriter {
  public:
    PhotoWriter(FileWriter& writer, const PDFJobSettings& settings)
        : writer_(writer), settings_(settings), catalog_(writer.reserve()), pages_(writer.reserve()) {}

    void add(const Photo& photo) {
        const PhotoLayout layout = layoutOf(photo, settings_.pageSize, settings_.pageMargin);
        const int picture = writePicture(writer_, photo);
        const int content = writer_.reserve();
        const auto& m = layout.matrix;
        writer_.addStream(content, "<< ",
                          fmt::format("q {} {} {} {} {} {} cm /Photo Do Q", pdfNumber(m[0]), pdfNumber(m[1]),
                                      pdfNumber(m[2]), pdfNumber(m[3]), pdfNumber(m[4]), pdfNumber(m[5])));
        const int page = writer_.reserve();
        writer_.addObject(
            page, fmt::format("<< /Type /Page /Parent {} 0 R /MediaBox [0 0 {} {}] /Resources << "
                              "/XObject << /Photo {} 0 R >> >> /Contents {} 0 R >>",
                              pages_, pdfNumber(layout.width), pdfNumber(layout.height), picture, content));
        kids_.push_back(fmt::format("{} 0 R", page));
    }

    int finish() {
        writer_.addObject(pages_, fmt::format("<< /Type /Pages /Kids [{}] /Count {} >>",
                                              fmt::join(kids_, " "), kids_.size()));
        writer_.addObject(catalog_, fmt::format("<< /Type /Catalog /Pages {} 0 R >>", pages_));
        return catalog_;
    }

  private:
    FileWriter& writer_;
    const PDFJobSettings& settings_;
    int catalog_;
    int pages_;
    std::vector<std::string> kids_;
};

}  // namespace

void writePhotos(std::span<const InputFile> files, const std::filesystem::path& destination,
                 const PDFJobSettings& settings, const WorkContext& context) {
    std::filesystem::path scratch = destination;
    scratch += ".photo";
    try {
        FileWriter writer(destination, "1.7");
        PhotoWriter photos(writer, settings);
        std::size_t done = 0;
        for (const InputFile& file : files) {
            context.throwIfStopped();
            photos.add(readPhoto(file, scratch, context));
            context.report(static_cast<double>(++done) / static_cast<double>(files.size()));
        }
        writer.finish(photos.finish());
    } catch (const std::filesystem::filesystem_error& error) {
        throw PDFError(PDFError::Case::writeFailed, error.what());
    }
}

}  // namespace tamble::pdf
