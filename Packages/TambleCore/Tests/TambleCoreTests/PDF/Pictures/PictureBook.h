#pragma once

#include <TambleCore/PDF/Pictures/Bytes.h>
#include <TambleCore/PDF/Structure/Document.h>
#include <TambleCore/Support/ItemNote.h>

#include <functional>
#include <map>
#include <optional>
#include <string>

#include <TambleCoreTests/TestFolder.h>

namespace tamble::pdf {

/// A small PDF with pictures, made for a test, and what became of it.
class PictureBook {
  public:
    using Keys = std::map<std::string, std::string>;

    PictureBook();

    QPDF& qpdf() { return document_.qpdf(); }

    /// A stream with these bytes; values are written as PDF has them.
    QPDFObjectHandle stream(const Bytes& bytes, const Keys& keys);
    /// A picture: `keys` beside or instead of those of an RGB picture of 8 bits whose bytes are deflated.
    QPDFObjectHandle picture(const Bytes& bytes, int width, int height, const Keys& keys = {});
    /// The same, of a JPEG.
    QPDFObjectHandle jpeg(const Bytes& file, int width, int height, const Keys& keys = {});
    QPDFObjectHandle form(const std::string& content, const QPDFObjectHandle& shown, const Keys& keys = {});
    /// A page of 8 by 8 inches on which `shown` has the name "/X".
    QPDFObjectHandle page(const std::string& content, const QPDFObjectHandle& shown);

    /// Makes it smaller and opens the result.
    Document compressed(const std::string& password = {}, const std::function<void(QPDFWriter&)>& setup = {});
    std::optional<ItemNote> note() const { return note_; }

  private:
    TestFolder folder_;
    Document document_;
    std::optional<ItemNote> note_;
};

/// Samples that look like a photograph's: smooth, with a little noise. Channel 0 grows to the right, 1
/// downwards, others stay in the middle.
Bytes photograph(int width, int height, int channels);
Bytes photographJpeg(int width, int height, int channels);
Bytes deflatedBytes(const Bytes& bytes);

/// The picture "/X" of a page, and its pixels across.
QPDFObjectHandle shownOn(const Document& document, std::size_t page);
int widthOf(QPDFObjectHandle picture);
std::string filterOf(QPDFObjectHandle stream);
/// The samples after all decoding, by qpdf's own means.
Bytes samplesOf(QPDFObjectHandle picture);
/// The bytes as they are coded.
Bytes codedBytes(QPDFObjectHandle stream);

}  // namespace tamble::pdf
