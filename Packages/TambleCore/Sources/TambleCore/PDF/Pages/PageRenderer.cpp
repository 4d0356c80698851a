#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Pages/PageRenderer.h>
#include <TambleCore/PDF/Pages/PixMap.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Log.h>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace tamble::pdf {
namespace {

constexpr Log pagesLog("pages");

constexpr const char* drawingProgram = "pdftoppm";
/// What the largest page takes, and what a bomb may take.
constexpr std::uint64_t drawingMemory = std::uint64_t{1} << 30U;
/// For a page: maps and plans take a few seconds, and a document that wastes time must end within 30 s.
constexpr std::chrono::seconds drawingTime{20};

/// An unnamed file in memory: an opened document has no business on a disk.
FileDescriptor memoryFile() {
    FileDescriptor file(::memfd_create("document", MFD_CLOEXEC));
    if (!file) throw PDFError(PDFError::Case::pageFailed, lastSystemError().message());
    return file;
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
    std::optional<PagePixels> size;
    const std::stop_token& stop;
};

PageRenderer::PageRenderer(const Document& document, const std::filesystem::path& file)
    : document_(document), original_(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (!original_) throw PDFError(PDFError::Case::unreadable, lastSystemError().message());
    for (const auto& page : document.pages()) pages_.push_back(PageGeometry::of(page));
}

Raster PageRenderer::page(int index, PagePixels size, const std::stop_token& stop) const {
    Raster result;
    draw({.next = index, .end = index + 1, .dpi = 0, .size = size, .stop = stop},
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
        draw({.next = first, .end = same, .dpi = resolution(first), .size = {}, .stop = stop}, take);
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
    ChildCommand command{.program = drawingProgram,
                         .arguments = {"-q", "-cropbox", "-f", std::to_string(order.next + 1), "-l",
                                       std::to_string(order.end)},
                         .files = {file.number()},
                         .memory = drawingMemory,
                         .processor = drawingTime * (order.end - order.next),
                         .patience = drawingTime};
    if (order.size) {
        command.arguments.insert(command.arguments.end(),
                                 {"-scale-to-x", std::to_string(order.size->width), "-scale-to-y",
                                  std::to_string(order.size->height)});
    } else {
        command.arguments.insert(command.arguments.end(),
                                 {"-r", decimal(order.dpi * geometry(order.next).unit)});
    }
    command.arguments.emplace_back("/proc/self/fd/3");
    ChildProgram child(command, order.stop);
    while (order.next < order.end) {
        const auto size = order.size ? order.size : pixelsOf(geometry(order.next), order.dpi);
        if (!size || double{1} * size->width * size->height > mostPagePixels)
            throw PDFError(PDFError::Case::pageTooLarge);
        auto picture = nextPixMap(child, *size);
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
        QPDFWriter writer(document_.qpdf());
        writer.setOutputFile("memory", stream, true);
        writer.setDecodeLevel(qpdf_dl_none);
        writer.setPreserveEncryption(false);
        writer.write();
    } catch (const std::runtime_error& error) {
        throw PDFError(PDFError::Case::pageFailed, error.what());
    }
    rewritten_ = std::move(file);
    return rewritten_;
}

}  // namespace tamble::pdf
