#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/Pictures/Flate.h>
#include <TambleCore/PDF/Pictures/Jpeg.h>

#include <TambleCoreTests/PDF/Pictures/PictureBook.h>

namespace tamble::pdf {
namespace {

Bytes bytesOf(const std::shared_ptr<Buffer>& buffer) {
    return {buffer->getBuffer(), buffer->getBuffer() + buffer->getSize()};
}

}  // namespace

PictureBook::PictureBook() : document_(Document::empty()) {}

QPDFObjectHandle PictureBook::stream(const Bytes& bytes, const Keys& keys) {
    auto made = QPDFObjectHandle::newStream(&qpdf(), std::string(bytes.begin(), bytes.end()));
    for (const auto& [key, value] : keys)
        made.getDict().replaceKey(key, QPDFObjectHandle::parse(&qpdf(), value));
    return made;
}

QPDFObjectHandle PictureBook::picture(const Bytes& bytes, int width, int height, const Keys& keys) {
    Keys all = keys;
    all.insert({{"/Type", "/XObject"},
                {"/Subtype", "/Image"},
                {"/Width", std::to_string(width)},
                {"/Height", std::to_string(height)},
                {"/BitsPerComponent", "8"},
                {"/ColorSpace", "/DeviceRGB"},
                {"/Filter", "/FlateDecode"}});
    return stream(all["/Filter"] == "/FlateDecode" ? deflatedBytes(bytes) : bytes, all);
}

QPDFObjectHandle PictureBook::jpeg(const Bytes& file, int width, int height, const Keys& keys) {
    Keys all = keys;
    all.insert({"/Filter", "/DCTDecode"});
    return picture(file, width, height, all);
}

QPDFObjectHandle PictureBook::form(const std::string& content, const QPDFObjectHandle& shown,
                                   const Keys& keys) {
    Keys all = keys;
    all.insert({{"/Type", "/XObject"}, {"/Subtype", "/Form"}, {"/BBox", "[0 0 1 1]"}});
    auto made = stream({content.begin(), content.end()}, all);
    auto resources = QPDFObjectHandle::parse("<< /XObject << >> >>");
    resources.getKey("/XObject").replaceKey("/X", shown);
    made.getDict().replaceKey("/Resources", resources);
    return made;
}

QPDFObjectHandle PictureBook::page(const std::string& content, const QPDFObjectHandle& shown) {
    auto made = qpdf().makeIndirectObject(
        QPDFObjectHandle::parse("<< /Type /Page /MediaBox [0 0 576 576] /Resources << /XObject << >> >> >>"));
    made.getKey("/Resources").getKey("/XObject").replaceKey("/X", shown);
    made.replaceKey("/Contents", QPDFObjectHandle::newStream(&qpdf(), content));
    qpdf().addPage(made, false);
    return qpdf().getAllPages().back();
}

Document PictureBook::compressed(const std::string& password, const std::function<void(QPDFWriter&)>& setup) {
    const auto from = folder_.files() / "book.pdf";
    const auto to = folder_.files() / "smaller.pdf";
    std::filesystem::remove(to);
    QPDFWriter writer(qpdf(), from.c_str());
    writer.setStreamDataMode(qpdf_s_preserve);
    if (setup) setup(writer);
    writer.write();
    const WorkContext context{.progress = {}, .stop = {}, .note = [this](ItemNote about) { note_ = about; }};
    const InputFile file{.url = from};
    PDFJobSettings settings;
    settings.password = password;
    compress({file, to, settings, context});
    return Document::open(to, password);
}

Bytes photograph(int width, int height, int channels) {
    Bytes samples;
    unsigned noise = 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int channel = 0; channel < channels; ++channel) {
                noise = noise * 1664525U + 1013904223U;
                const int base = channel == 0   ? 20 + 200 * x / width
                                 : channel == 1 ? 20 + 200 * y / height
                                                : 120;
                samples.push_back(static_cast<std::uint8_t>(base + static_cast<int>(noise >> 28U)));
            }
        }
    }
    return samples;
}

Bytes photographJpeg(int width, int height, int channels) {
    const Bytes samples = photograph(width, height, channels);
    constexpr int fine = 95;
    JpegWriter writer({width, height},
                      channels == 1   ? JpegColours::gray
                      : channels == 3 ? JpegColours::rgb
                                      : JpegColours::cmyk,
                      fine);
    const std::size_t row = static_cast<std::size_t>(width) * static_cast<std::size_t>(channels);
    for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y)
        writer.put(ByteView(samples).subspan(y * row, row));
    return writer.finish().value();
}

Bytes deflatedBytes(const Bytes& bytes) {
    return deflated(ByteView(bytes), std::stop_token());
}

QPDFObjectHandle shownOn(const Document& document, std::size_t page) {
    auto resources = QPDFObjectHandle(document.pages().at(page)).getKey("/Resources");
    return resources.getKey("/XObject").getKey("/X");
}

int widthOf(QPDFObjectHandle picture) {
    return picture.getDict().getKey("/Width").getIntValueAsInt();
}

std::string filterOf(QPDFObjectHandle stream) {
    return stream.getDict().getKey("/Filter").unparse();
}

Bytes samplesOf(QPDFObjectHandle picture) {
    return bytesOf(picture.getStreamData(qpdf_dl_all));
}

Bytes codedBytes(QPDFObjectHandle stream) {
    return bytesOf(stream.getRawStreamData());
}

}  // namespace tamble::pdf
