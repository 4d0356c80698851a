#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Photos/PhotoDocument.h>
#include <TambleCore/PDF/Photos/PhotoLayout.h>
#include <TambleCore/PDF/Structure/Deflate.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace tamble::pdf {
namespace {

/// Numbers as PDFs write them: plain, and no longer than they need to be.
std::string number(double value) {
    std::string text = fmt::format("{:.4f}", value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

class PhotoWriter {
  public:
    PhotoWriter(FileWriter& writer, const PDFJobSettings& settings)
        : writer_(writer), settings_(settings), catalog_(writer.reserve()), pages_(writer.reserve()) {}

    void add(const Photo& photo) {
        const PhotoLayout layout = layoutOf(photo, settings_.pageSize, settings_.pageMargin);
        const int picture = addPicture(photo);
        const int content = writer_.reserve();
        const auto& m = layout.matrix;
        writer_.addStream(content, "<< ",
                          fmt::format("q {} {} {} {} {} {} cm /Photo Do Q", number(m[0]), number(m[1]),
                                      number(m[2]), number(m[3]), number(m[4]), number(m[5])));
        const int page = writer_.reserve();
        writer_.addObject(page,
                          fmt::format("<< /Type /Page /Parent {} 0 R /MediaBox [0 0 {} {}] /Resources << "
                                      "/XObject << /Photo {} 0 R >> >> /Contents {} 0 R >>",
                                      pages_, number(layout.width), number(layout.height), picture, content));
        kids_.push_back(fmt::format("{} 0 R", page));
    }

    int finish() {
        writer_.addObject(pages_, fmt::format("<< /Type /Pages /Kids [{}] /Count {} >>",
                                              fmt::join(kids_, " "), kids_.size()));
        writer_.addObject(catalog_, fmt::format("<< /Type /Catalog /Pages {} 0 R >>", pages_));
        return catalog_;
    }

  private:
    int addPicture(const Photo& photo) {
        std::string colours = photo.colours;
        if (photo.profile) {
            const int profile = writer_.reserve();
            writer_.addStream(profile,
                              fmt::format("<< /N {} {}", photo.profile->components, photo.profile->filter),
                              photo.profile->data);
            colours = fmt::format("[/ICCBased {} 0 R]", profile);
        }
        const std::string size =
            fmt::format("<< /Type /XObject /Subtype /Image /Width {} /Height {} ", photo.width, photo.height);
        std::string mask;
        if (!photo.alphaCoding.empty()) {
            const int alpha = writer_.reserve();
            writer_.addStream(alpha, size + "/ColorSpace /DeviceGray " + photo.alphaCoding, photo.alpha);
            mask = fmt::format("/SMask {} 0 R ", alpha);
        }
        const int picture = writer_.reserve();
        writer_.addStream(picture, size + fmt::format("/ColorSpace {} ", colours) + mask + photo.coding,
                          photo.file ? photo.data : std::string_view(photo.bytes));
        return picture;
    }

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
