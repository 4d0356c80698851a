#include <TambleCore/PDF/Photos/PhotoWriting.h>

#include <fmt/format.h>

namespace tamble::pdf {
namespace {

std::string sizeKeys(const Photo& photo) {
    return fmt::format("/Type /XObject /Subtype /Image /Width {} /Height {} ", photo.width, photo.height);
}

std::string alphaKeys(const Photo& photo) {
    return sizeKeys(photo) + "/ColorSpace /DeviceGray " + photo.alphaCoding;
}

std::string profileKeys(const PhotoProfile& profile) {
    return fmt::format("/N {} {}", profile.components, profile.filter);
}

std::string_view dataOf(const Photo& photo) {
    return photo.file ? photo.data : std::string_view(photo.bytes);
}

QPDFObjectHandle stream(QPDF& qpdf, const std::string& keys, std::string_view data) {
    auto made = qpdf.newStream();
    made.replaceDict(QPDFObjectHandle::parse("<< " + keys + ">>"));
    auto dictionary = made.getDict();
    made.replaceStreamData(std::string(data), dictionary.getKey("/Filter"),
                           dictionary.getKey("/DecodeParms"));
    return made;
}

}  // namespace

std::string pdfNumber(double value) {
    std::string text = fmt::format("{:.4f}", value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

int writePicture(FileWriter& writer, const Photo& photo) {
    std::string colours = photo.colours;
    if (photo.profile) {
        const int profile = writer.reserve();
        writer.addStream(profile, "<< " + profileKeys(*photo.profile), photo.profile->data);
        colours = fmt::format("[/ICCBased {} 0 R]", profile);
    }
    std::string mask;
    if (!photo.alphaCoding.empty()) {
        const int alpha = writer.reserve();
        writer.addStream(alpha, "<< " + alphaKeys(photo), photo.alpha);
        mask = fmt::format("/SMask {} 0 R ", alpha);
    }
    const int picture = writer.reserve();
    writer.addStream(picture,
                     fmt::format("<< {}/ColorSpace {} {}{}", sizeKeys(photo), colours, mask, photo.coding),
                     dataOf(photo));
    return picture;
}

QPDFObjectHandle pictureObject(QPDF& qpdf, const Photo& photo) {
    auto picture =
        stream(qpdf, fmt::format("{}/ColorSpace {} {}", sizeKeys(photo), photo.colours, photo.coding),
               dataOf(photo));
    if (photo.profile) {
        auto colours = QPDFObjectHandle::newArray();
        colours.appendItem(QPDFObjectHandle::newName("/ICCBased"));
        colours.appendItem(stream(qpdf, profileKeys(*photo.profile), photo.profile->data));
        picture.getDict().replaceKey("/ColorSpace", colours);
    }
    if (!photo.alphaCoding.empty())
        picture.getDict().replaceKey("/SMask", stream(qpdf, alphaKeys(photo), photo.alpha));
    return picture;
}

}  // namespace tamble::pdf
