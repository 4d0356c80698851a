#include <TambleCore/Jobs/FileNames.h>
#include <TambleCore/PDF/PDFNames.h>
#include <TambleCore/Support/NameFitting.h>
#include <TambleCore/Support/Text.h>

namespace tamble {
namespace {

constexpr std::string_view pdfExtension = ".pdf";

/// With as many digits as the largest number of its kind.
std::string padded(std::size_t number, std::size_t largest) {
    return fmt::format("{:0{}}", number, std::to_string(largest).size());
}

std::string pagesText(std::span<const int> pages) {
    if (pages.size() == 1) return fmt::format("page {}", pages.front() + 1);
    return fmt::format("pages {}-{}", pages.front() + 1, pages.back() + 1);
}

}  // namespace

std::string combinedName(PDFTool tool, const PDFJobSettings& settings, std::span<const InputFile> files) {
    const std::string asked = settings.outputStem.value_or("");
    if (const std::string_view typed = trimmed(asked); !typed.empty())
        return fittedName(FileNames::safe(typed), pdfExtension);
    if (files.empty()) return "Combined.pdf";
    const std::string stem = files.front().url.stem().native();
    if (files.size() == 1) return fittedName(stem, pdfExtension);
    const std::string_view suffix = tool == PDFTool::fromImages ? " photos" : " combined";
    return fittedName(stem, std::string(suffix) + std::string(pdfExtension));
}

std::string pieceName(const std::string& stem, std::size_t piece, std::size_t pieceCount,
                      std::span<const int> pages) {
    return fittedName(
        stem, fmt::format(" {}, {}{}", padded(piece + 1, pieceCount), pagesText(pages), pdfExtension));
}

std::string pagePictureName(const std::string& stem, int page, int pageCount, ImageFormat format) {
    return fittedName(
        stem,
        fmt::format(" {}.{}", padded(static_cast<std::size_t>(page) + 1, static_cast<std::size_t>(pageCount)),
                    fileExtension(format)));
}

}  // namespace tamble
