#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Photos/Photo.h>
#include <TambleCore/PDF/Photos/PhotoWriting.h>
#include <TambleCore/PDF/Structure/Document.h>
#include <TambleCore/PDF/Structure/PageBox.h>
#include <TambleCore/Platform/AtomicFile.h>

#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

namespace tamble::pdf {
namespace {

/// A picture that was drawn or photographed, ready to be written.
Photo signaturePicture(const std::vector<std::byte>& png, const std::filesystem::path& destination,
                       const WorkContext& context) {
    std::filesystem::path picture = destination;
    picture += ".signature.png";
    std::filesystem::path scratch = destination;
    scratch += ".converted.png";
    try {
        writeFileAtomically(picture, {reinterpret_cast<const char*>(png.data()), png.size()});
        const InputFile file{.url = picture, .contentType = ContentType::withIdentifier("public.png")};
        Photo photo = readPhoto(file, scratch, context);
        std::filesystem::remove(picture);
        return photo;
    } catch (const PDFError& error) {
        throw PDFError(PDFError::Case::signatureUnreadable, error.detail());
    }
}

/// The page's own list of resources, of which no other page has a part.
QPDFObjectHandle ownPictures(QPDFObjectHandle page) {
    auto resources = QPDFPageObjectHelper(page).getAttribute("/Resources", true);
    if (!resources.isDictionary()) {
        resources = QPDFObjectHandle::newDictionary();
        page.replaceKey("/Resources", resources);
    }
    auto pictures = resources.getKey("/XObject");
    resources.replaceKey(
        "/XObject", pictures.isDictionary() ? pictures.shallowCopy() : QPDFObjectHandle::newDictionary());
    return resources.getKey("/XObject");
}

std::string freeName(QPDFObjectHandle pictures) {
    std::string name;
    int number = 0;
    do {
        name = fmt::format("/Signature{}", ++number);
    } while (pictures.hasKey(name));
    return name;
}

void place(const Document& document, const SignaturePlacement& placement, const Photo& photo) {
    auto page = document.pages().at(static_cast<std::size_t>(placement.page));
    auto pictures = ownPictures(page);
    const std::string name = freeName(pictures);
    pictures.replaceKey(name, pictureObject(document.qpdf(), photo));
    const auto m =
        PageBox::of(page).matrixFor(placement.rect, static_cast<double>(photo.width) / photo.height);
    // What the page's own content leaves behind must not move the signature.
    QPDFPageObjectHelper helper(page);
    helper.addPageContents(document.qpdf().newStream("q\n"), true);
    helper.addPageContents(document.qpdf().newStream(fmt::format(
                               "\nQ\nq {} {} {} {} {} {} cm {} Do Q\n", pdfNumber(m[0]), pdfNumber(m[1]),
                               pdfNumber(m[2]), pdfNumber(m[3]), pdfNumber(m[4]), pdfNumber(m[5]), name)),
                           false);
}

void requireFitting(const SignaturePlacement& placement, int pageCount) {
    if (placement.page < 0 || placement.page >= pageCount) throw PDFError(PDFError::Case::invalidPageRange);
    const auto& rect = placement.rect;
    const bool isPlace = rect.width > 0 && rect.height > 0 && rect.x >= 0 && rect.y >= 0 &&
                         rect.x + rect.width <= 1.0001 && rect.y + rect.height <= 1.0001;
    if (!isPlace) throw PDFError(PDFError::Case::signatureOffPage);
}

}  // namespace

void sign(const SingleWork& work) {
    const auto& signatures = work.settings.signatures;
    if (signatures.empty()) throw PDFError(PDFError::Case::signatureMissing);
    const Document document = Document::open(work.file.url, work.settings.password);
    for (const auto& placement : signatures) requireFitting(placement, document.pageCount());
    if (isSealed(document)) work.context.leave(ItemNote::sealBroken);
    QPDFPageDocumentHelper(document.qpdf()).pushInheritedAttributesToPage();
    for (const auto& placement : signatures) {
        work.context.throwIfStopped();
        place(document, placement, signaturePicture(placement.imagePNG, work.destination, work.context));
    }
    constexpr double half = 0.5;
    save(document, work.destination, work.context, half);
}

}  // namespace tamble::pdf
