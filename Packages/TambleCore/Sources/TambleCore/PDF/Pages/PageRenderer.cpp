#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Pages/PageRenderer.h>
#include <TambleCore/PDF/Pages/PixMap.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>

#include <fcntl.h>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <sys/mman.h>
#include <unistd.h>

namespace tamble::pdf {
namespace {

constexpr Log pagesLog("pages");

constexpr const char* drawingProgram = "pdftoppm";
/// What the largest page takes, and what a bomb may take.
constexpr std::uint64_t drawingMemory = std::uint64_t{1} << 30U;
/// Processor time for a page: maps take a few seconds, and a document that wastes time must end within 30 s.
constexpr std::chrono::seconds drawingTime{12};
/// Large pictures take longer.
constexpr double pixelsPerSecond = 5e6;

/// An unnamed file in memory: an opened document has no business on a disk.
FileDescriptor memoryFile() {
    FileDescriptor file(::memfd_create("document", MFD_CLOEXEC));
    if (!file) throw PDFError(PDFError::Case::pageFailed, lastSystemError().message());
    return file;
}

std::chrono::seconds timeFor(PagePixels size) {
    const double pixels = double{1} * size.width * size.height;
    return drawingTime + std::chrono::seconds(static_cast<int>(pixels / pixelsPerSecond));
}

/// Writes down how the page's boxes were understood here.
void settleBoxes(QPDFObjectHandle page) {
    const PageBox box = PageBox::of(page);
    const auto shown = QPDFObjectHandle::newFromRectangle(
        {box.left, box.bottom, box.left + box.width, box.bottom + box.height});
    auto medium = QPDFPageObjectHelper(page).getMediaBox();
    // As a rectangle its corners are in order.
    page.replaceKey("/MediaBox", medium.isRectangle()
                                     ? QPDFObjectHandle::newFromRectangle(medium.getArrayAsRectangle())
                                     : shown);
    page.replaceKey("/CropBox", shown);
}

std::string decimal(double number) {
    return fmt::format("{:.4f}", number);
}

}  // namespace

/// Pages that are still to be drawn.
struct PageRenderer::Order {
    int next;
    int end;
    double dpi;
    /// In place of the resolution.
    std::optional<PagePixels> fixedSize;
    const std::stop_token& stop;

    /// Of the next page. Throws PDFError::pageTooLarge.
    PagePixels size(const PageRenderer& renderer) const {
        const auto size = fixedSize ? fixedSize : pixelsOf(renderer.geometry(next), dpi);
        if (!size || double{1} * size->width * size->height > mostPagePixels)
            throw PDFError(PDFError::Case::pageTooLarge);
        return *size;
    }
};

PageRenderer::PageRenderer(const Document& document, const std::filesystem::path& file)
    : document_(document), original_(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (!original_) throw PDFError(PDFError::Case::unreadable, lastSystemError().message());
    for (const auto& page : document.pages()) pages_.push_back(PageGeometry::of(page));
}

Raster PageRenderer::page(int index, PagePixels size, const std::stop_token& stop) const {
    Raster result;
    draw({.next = index, .end = index + 1, .dpi = 0, .fixedSize = size, .stop = stop},
         [&](int, Raster picture) { result = std::move(picture); });
    return result;
}

void PageRenderer::pages(int first, int end, const Resolution& resolution, const Taker& take,
                         const std::stop_token& stop) const {
    // The drawing program takes every unit for a point.
    const auto dotsPer72Units = [&](int page) { return resolution(page) * geometry(page).unit; };
    while (first < end) {
        int same = first + 1;
        while (same < end && dotsPer72Units(same) == dotsPer72Units(first)) ++same;
        draw({.next = first, .end = same, .dpi = resolution(first), .fixedSize = {}, .stop = stop}, take);
        first = same;
    }
}

void PageRenderer::draw(Order order, const Taker& take) const {
    bool mayRewrite = !document_.isLocked();
    while (order.next < order.end) {
        try {
            drawFrom(mayRewrite ? original_ : rewritten(), order, take);
        } catch (const ChildFailed& failed) {
            pagesLog.notice("Page {} could not be drawn", order.next + 1);
            if (!mayRewrite || failed.reason() != ChildFailed::Reason::misbehaved)
                throw PDFError(PDFError::Case::pageFailed, failed.what());
            mayRewrite = false;
        }
    }
}

void PageRenderer::drawFrom(const FileDescriptor& file, Order& order, const Taker& take) const {
    const auto patience = timeFor(order.size(*this));
    ChildCommand command{.program = drawingProgram,
                         .arguments = {"-q", "-cropbox", "-f", std::to_string(order.next + 1), "-l",
                                       std::to_string(order.end)},
                         .files = {file.number()},
                         .memory = drawingMemory,
                         .processor = patience * (order.end - order.next + 1),
                         .patience = patience};
    auto& arguments = command.arguments;
    if (order.fixedSize) {
        // Without the first, the sides of turned pages would be exchanged.
        arguments.insert(arguments.end(), {"-scale-dimension-before-rotation", "-scale-to-x",
                                           std::to_string(order.fixedSize->width), "-scale-to-y",
                                           std::to_string(order.fixedSize->height)});
    } else {
        arguments.insert(arguments.end(), {"-r", decimal(order.dpi * geometry(order.next).unit)});
    }
    arguments.emplace_back("/proc/self/fd/3");
    ChildProgram child(command, order.stop);
    while (order.next < order.end) {
        auto picture = nextPixMap(child, order.size(*this));
        if (!picture) child.finish();
        if (!picture) throw ChildFailed(ChildFailed::Reason::misbehaved, "A page is missing");
        take(order.next++, std::move(*picture));
    }
}

const FileDescriptor& PageRenderer::rewritten() const {
    const std::scoped_lock lock(rewriting_);
    if (rewritten_) return rewritten_;
    FileDescriptor file = memoryFile();
    try {
        // The library closes what it writes to.
        FILE* const stream = ::fdopen(::fcntl(file.number(), F_DUPFD_CLOEXEC, 0), "wb");
        if (stream == nullptr) throw PDFError(PDFError::Case::pageFailed, lastSystemError().message());
        for (const auto& page : document_.pages()) settleBoxes(page);
        QPDFWriter writer(document_.qpdf());
        writer.setOutputFile("memory", stream, true);
        writer.setDecodeLevel(qpdf_dl_none);
        writer.setCompressStreams(false);
        writer.setPreserveEncryption(false);
        writer.write();
    } catch (const std::runtime_error& error) {
        throw PDFError(PDFError::Case::pageFailed, error.what());
    }
    rewritten_ = std::move(file);
    return rewritten_;
}

}  // namespace tamble::pdf
