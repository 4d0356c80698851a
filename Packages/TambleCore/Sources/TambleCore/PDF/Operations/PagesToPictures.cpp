#include <TambleCore/Images/ImageConverter.h>
#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/Pages/PagesSideBySide.h>
#include <TambleCore/PDF/Pages/StreamStore.h>
#include <TambleCore/PDF/Structure/Navigation.h>

#include <cmath>

namespace tamble::pdf {
namespace {

// By looking at pages of small print and at scans: footnotes read well, and nothing is kept that only a
// magnifying glass would show.
constexpr double screenResolution = 120;
constexpr double jpegFactor = 0.4;
/// Of very large pages, which are looked at from further away.
constexpr double mostPixels = 40e6;
constexpr double longestSide = 65'000;
/// Of all the work, for the progress.
constexpr double drawingShare = 0.95;

double resolutionFor(const PageGeometry& page) {
    const double width = page.shownWidth() / 72;
    const double height = page.shownHeight() / 72;
    return std::min(
        {screenResolution, std::sqrt(mostPixels / (width * height)), longestSide / std::max(width, height)});
}

struct StoredPicture {
    int width = 0;
    int height = 0;
    int channels = 0;
    StreamStore::Piece piece;
};

QPDFObjectHandle pictureStream(QPDF& qpdf, const StoredPicture& picture, const StreamStore& store) {
    auto stream = QPDFObjectHandle::newStream(&qpdf);
    auto dictionary = stream.getDict();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Image"));
    dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(picture.width));
    dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(picture.height));
    dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
    dictionary.replaceKey("/ColorSpace",
                          QPDFObjectHandle::newName(picture.channels == 1 ? "/DeviceGray" : "/DeviceRGB"));
    stream.replaceStreamData(store.provider(picture.piece), QPDFObjectHandle::newName("/DCTDecode"),
                             QPDFObjectHandle::newNull());
    return stream;
}

/// Draws the picture all over the page as it is shown.
std::string placing(const PageBox& box) {
    const NormalizedRect everywhere{.x = 0, .y = 0, .width = 1, .height = 1};
    std::string content = "q";
    for (const double number : box.matrixFor(everywhere, box.shownWidth() / box.shownHeight()))
        content += fmt::format(" {:.5f}", number);
    return content + " cm /Page Do Q\n";
}

void become(QPDFObjectHandle page, const QPDFObjectHandle& picture, const PageBox& box,
            const Document& document) {
    QPDF& qpdf = document.qpdf();
    keepKeys(page, {"/Type", "/Parent", "/MediaBox", "/CropBox", "/BleedBox", "/TrimBox", "/ArtBox",
                    "/Rotate", "/UserUnit", "/Dur", "/Trans", "/Annots"});
    auto pictures = QPDFObjectHandle::newDictionary();
    pictures.replaceKey("/Page", picture);
    auto resources = QPDFObjectHandle::newDictionary();
    resources.replaceKey("/XObject", pictures);
    page.replaceKey("/Resources", resources);
    page.replaceKey("/Contents", QPDFObjectHandle::newStream(&qpdf, placing(box)));
}

/// Inherited attributes, which the pages have by themselves now, and whatever else was left there.
void cleanPageTree(QPDFObjectHandle page) {
    for (auto node = page.getKey("/Parent"); node.isDictionary(); node = node.getKey("/Parent")) {
        const auto before = node.getKeys().size();
        keepKeys(node, {"/Type", "/Parent", "/Kids", "/Count"});
        // Its own parents have been seen already.
        if (node.getKeys().size() == before) break;
    }
}

}  // namespace

void makePagesPictures(const SingleWork& work) {
    const Document document = Document::open(work.file.url, work.settings.password);
    if (isSealed(document)) work.context.leave(ItemNote::sealBroken);
    const PageRenderer renderer(document, work.file.url);
    StreamStore store(work.destination.parent_path());
    std::vector<StoredPicture> pictures(static_cast<std::size_t>(renderer.pageCount()));
    const auto resolution = [&](int page) { return resolutionFor(renderer.geometry(page)); };
    WorkContext drawing = work.context;
    drawing.progress = [&](double share) { work.context.report(drawingShare * share); };
    const WorkContext encoding{.progress = {}, .stop = work.context.stop};
    drawSideBySide(
        renderer, resolution, bytesPerPixel(ImageFormat::jpeg),
        [&](int page, Raster picture) {
            dropUnusedColour(picture);
            ImageConverter::Memory file;
            ImageConverter().encode(
                picture, {.format = ImageFormat::jpeg, .factor = jpegFactor, .dotsPerInch = resolution(page)},
                std::ref(file), encoding);
            pictures[static_cast<std::size_t>(page)] = {picture.width, picture.height, picture.channels,
                                                        store.add(file)};
        },
        drawing);

    keepOnlyNavigation(document);
    document.qpdf().pushInheritedAttributesToPage();
    for (int page = 0; page < renderer.pageCount(); ++page) {
        const auto index = static_cast<std::size_t>(page);
        become(document.pages()[index], pictureStream(document.qpdf(), pictures[index], store),
               renderer.geometry(page).box, document);
    }
    for (const auto& page : document.pages()) cleanPageTree(page);
    save(document, work.destination, work.context, drawingShare);
}

}  // namespace tamble::pdf
