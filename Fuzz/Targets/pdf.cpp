// Damaged PDFs through the operations on pages. The first byte chooses the operation, the second one of its
// settings; the rest is the file.
#include <TambleCore/Jobs/SkipReason.h>
#include <TambleCore/PDF/PDFEngine.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/Support/UUID.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "Property.h"
#include <qpdf/QPDF.hh>

namespace {

using namespace tamble;
namespace fs = std::filesystem;

/// A red pixel.
constexpr std::array<unsigned char, 69> pixel{
    0x89, 'P',  'N',  'G', '\r', '\n', 0x1A, '\n', 0,    0,    0,    13,   'I',  'H',  'D',  'R', 0, 0,
    0,    1,    0,    0,   0,    1,    8,    2,    0,    0,    0,    0x90, 0x77, 0x53, 0xDE, 0,   0, 0,
    12,   'I',  'D',  'A', 'T',  0x78, 0x9C, 0x63, 0xF8, 0xCF, 0xC0, 0,    0,    3,    1,    1,   0, 0xC9,
    0xFE, 0x92, 0xEF, 0,   0,    0,    0,    'I',  'E',  'N',  'D',  0xAE, 0x42, 0x60, 0x82};

PDFJobSettings settingsFor(std::uint8_t choice) {
    PDFJobSettings settings;
    if (choice % 2 == 1) settings.password = "open";
    constexpr std::array<const char*, 4> lists{"1", "2", "2,1", "1-2:90"};
    settings.pageList = lists[choice / 2 % lists.size()];
    if (choice / 8 % 2 == 1) settings.pages = {{{.source = 0}, {.source = 1, .rotation = 90}, {.source = 0}}};
    if (choice / 16 % 2 == 1) settings.split = split_mode::Every{2};
    const auto bytes = std::as_bytes(std::span(pixel));
    settings.signatures = {{.id = "A",
                            .page = choice / 32 % 2,
                            .rect = {.x = 0.1, .y = 0.1, .width = 0.5, .height = 0.5},
                            .imagePNG = {bytes.begin(), bytes.end()}}};
    return settings;
}

/// What was written can be opened, and has pages; passwords are changed without a look at these.
void checkFile(const fs::path& file, const std::string& password, bool hasPages) {
    auto qpdf = QPDF::create();
    qpdf->setSuppressWarnings(true);
    try {
        try {
            qpdf->processFile(file.c_str());
        } catch (const QPDFExc& error) {
            if (error.getErrorCode() != qpdf_e_password) throw;
            qpdf = QPDF::create();
            qpdf->setSuppressWarnings(true);
            qpdf->processFile(file.c_str(), password.c_str());
        }
        if (hasPages) fuzz::require(!qpdf->getAllPages().empty(), "there are pages");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        fuzz::require(false, "what was written can be opened");
    }
}

/// A folder of this process, empty again after each run.
const fs::path& workFolder() {
    static const fs::path folder = [] {
        const char* const memory = "/dev/shm";
        const fs::path parent = fs::is_directory(memory) ? fs::path(memory) : fs::temp_directory_path();
        fs::path made = parent / ("tamble-fuzz-" + newUUID());
        fs::create_directory(made);
        std::atexit([] { fs::remove_all(workFolder()); });
        return made;
    }();
    return folder;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::array<PDFTool, 6> tools{PDFTool::merge, PDFTool::split,       PDFTool::organize,
                                           PDFTool::sign,  PDFTool::addPassword, PDFTool::removePassword};
    fuzz::Input input(data, size);
    const std::uint8_t operation = fuzz::takeByte(input);
    const PDFTool tool = tools[operation % tools.size()];
    const bool deletes = operation / tools.size() % 2 == 1;
    const PDFJobSettings settings = settingsFor(fuzz::takeByte(input));
    const fs::path folder = workFolder() / "run";
    fs::create_directory(folder);
    const fs::path file = folder / "in.pdf";
    std::ofstream(file, std::ios::binary) << fuzz::textOf(input);
    const InputFile damaged{.url = file, .contentType = ContentType::withIdentifier("com.adobe.pdf")};
    const fs::path destination = folder / "out";
    try {
        if (tool == PDFTool::merge) {
            const std::vector<InputFile> files{damaged, damaged};
            pdfEngine().combine(tool, files, destination, settings, {});
        } else {
            const bool isEdit = tool == PDFTool::organize && deletes;
            pdfEngine().process(isEdit ? PDFTool::deletePages : tool, damaged, destination, settings, {});
        }
        if (fs::is_directory(destination)) {
            for (const auto& piece : fs::directory_iterator(destination))
                checkFile(piece.path(), settings.password, true);
        } else {
            checkFile(destination, settings.password,
                      tool != PDFTool::addPassword && tool != PDFTool::removePassword);
        }
    } catch (const Failure& failure) {
        // A failure that writing is blamed for is one of our own.
        fuzz::require(failure.code() != "writeFailed", failure.detail());
    } catch (const ProcessorSkip&) {
    }
    fs::remove_all(folder);
    return 0;
}
