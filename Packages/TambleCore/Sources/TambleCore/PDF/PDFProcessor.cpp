#include <TambleCore/Jobs/RequireSmaller.h>
#include <TambleCore/PDF/PDFEngine.h>
#include <TambleCore/PDF/PDFNames.h>
#include <TambleCore/PDF/PDFProcessor.h>

namespace tamble {
namespace {

bool writesFolder(PDFTool tool) {
    return tool == PDFTool::split || tool == PDFTool::toImages;
}

/// Whose encoders may take a gibibyte for one large page alone.
bool takesMuchMemory(ImageFormat format) {
    return format == ImageFormat::webp || format == ImageFormat::heic || format == ImageFormat::avif;
}

/// A PDF of a kilobyte can be made to inflate to gigabytes, or to turn in circles.
WorkNeeds boundedNeeds() {
    return {.memory = std::uint64_t{1} << 30U, .silence = std::chrono::seconds(25)};
}

}  // namespace

std::string PDFProcessor::fileExtension() const {
    return tool_ == PDFTool::toImages ? std::string(tamble::fileExtension(settings_.imageFormat)) : "pdf";
}

std::string PDFProcessor::outputName(const InputFile& file) const {
    return writesFolder(tool_) ? file.url.stem().native() + "/" : file.url.filename().native();
}

void PDFProcessor::process(const InputFile& file, const std::filesystem::path& destination,
                           const WorkContext& context) const {
    context.throwIfStopped();
    pdfEngine().process(tool_, file, destination, settings_, context);
    if (tool_ == PDFTool::compress && settings_.skipIfNotSmaller) requireSmaller(file, destination);
}

bool PDFProcessor::canReplaceOriginals() const {
    return !writesFolder(tool_) && tool_ != PDFTool::extractPages;
}

bool PDFProcessor::keepsModificationTime() const {
    return tool_ == PDFTool::compress || tool_ == PDFTool::addPassword || tool_ == PDFTool::removePassword;
}

WorkNeeds PDFProcessor::needs() const {
    WorkNeeds needs = boundedNeeds();
    needs.startsPrograms = tool_ == PDFTool::toImages ||
                           (tool_ == PDFTool::compress && settings_.compression == PDFCompression::smallest);
    if (tool_ == PDFTool::toImages && takesMuchMemory(settings_.imageFormat)) needs.memory.reset();
    return needs;
}

std::string PDFCombiner::outputName(std::span<const InputFile> files) const {
    return combinedName(tool_, settings_, files);
}

void PDFCombiner::combine(std::span<const InputFile> files, const std::filesystem::path& destination,
                          const WorkContext& context) const {
    context.throwIfStopped();
    pdfEngine().combine(tool_, files, destination, settings_, context);
}

WorkNeeds PDFCombiner::needs() const {
    return boundedNeeds();
}

}  // namespace tamble
