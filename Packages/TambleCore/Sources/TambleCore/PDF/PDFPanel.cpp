#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/PDF/PDFPanel.h>

namespace tamble {
namespace {

PanelSection nameSection() {
    return {.heading = "Name of the new PDF",
            .control = PanelControl::text,
            .choices = {{.label = "Name", .changes = settingChange("outputStem", std::string(panelText))}}};
}

std::vector<PanelSection> splitSections() {
    constexpr int pagesAtOnce = 10;
    return {{.heading = "How should it be split?",
             .control = PanelControl::cards,
             .choices = {{.label = "Every page on its own",
                          .description = "One PDF per page.",
                          .changes = settingChange("split", PDFSplitMode(split_mode::EveryPage{}))},
                         {.label = fmt::format("Every {} pages", pagesAtOnce),
                          .description = "A new PDF after each group.",
                          .changes = settingChange("split", PDFSplitMode(split_mode::Every{pagesAtOnce}))}}},
            {.control = PanelControl::text,
             .choices = {{.label = "Page groups",
                          .description = "Each group you type becomes a PDF. For example 1-3, 5, 8-10",
                          .changes = settingChange("split", PDFSplitMode(split_mode::Ranges{panelText}))}},
             .placeholder = "Type the pages to split, like 1-3, 5",
             .note = "The pieces go into a new folder named after the PDF. The original isn't changed."}};
}

PanelSection pagesSection(std::string heading, std::string label, std::string placeholder) {
    return {.heading = std::move(heading),
            .control = PanelControl::text,
            .choices = {{.label = std::move(label),
                         .changes = settingChange("pageList", std::string(panelText))}},
            .placeholder = std::move(placeholder),
            .note = "At least one page has to stay."};
}

std::vector<PanelSection> compressionSections() {
    return {{.heading = "How much smaller?",
             .control = PanelControl::cards,
             .choices = {{.label = "Smaller, text stays sharp",
                          .description = "Pictures are re-saved for screens. Text can still be selected and "
                                         "searched. Recommended.",
                          .changes = settingChange("compression", PDFCompression::balanced)},
                         {.label = "Smallest",
                          .description =
                              "Every page becomes a picture. Much smaller, but text can't be selected or "
                              "searched.",
                          .changes = settingChange("compression", PDFCompression::smallest)}},
             .note = "PDFs that are already small are left as they are."}};
}

PanelSection signatureNote() {
    return {.heading = "Draw your signature",
            .control = PanelControl::note,
            .note = "Place it on any page. The PDF gets a picture of your signature, not a digital seal."};
}

PanelSection passwordSection(std::string heading, std::string placeholder) {
    return {.heading = std::move(heading),
            .control = PanelControl::password,
            .placeholder = std::move(placeholder)};
}

std::vector<PanelSection> pageShapeSections() {
    const auto shape = [](std::string label, std::string description, PDFPageSize size) {
        return PanelChoice{.label = std::move(label),
                           .description = std::move(description),
                           .changes = settingChange("pageSize", size)};
    };
    return {{.heading = "Page size",
             .control = PanelControl::cards,
             .choices = {shape("Same shape as each photo", "", PDFPageSize::fitPhoto),
                         shape("A4", "Turned to each photo's own orientation.", PDFPageSize::a4),
                         shape("Letter", "Turned to each photo's own orientation.", PDFPageSize::letter)}},
            {.control = PanelControl::toggle,
             .choices = {{.label = "White border",
                          .description = "A margin around each photo.",
                          .changes = settingChange("pageMargin", true)},
                         {.changes = settingChange("pageMargin", false)}}},
            nameSection()};
}

std::vector<PanelSection> pictureSections() {
    const auto format = [](ImageFormat which, std::string description) {
        return PanelChoice{.label = std::string(displayName(which)),
                           .description = std::move(description),
                           .changes = settingChange("imageFormat", which)};
    };
    const SettingsSchema schema = pdfSettingsSchema(PDFTool::toImages);
    return {{.heading = "Format of the pictures",
             .control = PanelControl::cards,
             .choices = {format(ImageFormat::jpeg, "Opens on every phone, computer and website."),
                         format(ImageFormat::png, "Text stays perfectly sharp. Bigger files."),
                         format(ImageFormat::webp, "Best for websites and blogs.")},
             .moreLabel = "More formats (HEIC, TIFF, GIF, AVIF)…",
             .moreChoices = {format(ImageFormat::heic, "Small and sharp."),
                             format(ImageFormat::tiff, "For printing and editing. Very large files."),
                             format(ImageFormat::gif, "Limited colours."),
                             format(ImageFormat::avif, "Newest web format. Very small files.")}},
            {.heading = "Sharpness",
             .control = PanelControl::number,
             .choices = {{.label = "Dots per inch"}},
             .setting = "imageDPI",
             .range = schema.fieldNamed("imageDPI")->hint.range.value(),
             .note = "150 suits screens, 300 suits printing."}};
}

std::vector<PanelSection> sectionsOf(PDFTool tool) {
    switch (tool) {
        case PDFTool::merge:
            return {nameSection(), passwordSection("Password of locked PDFs", "Password")};
        case PDFTool::split:
            return splitSections();
        case PDFTool::organize:
            return {pagesSection("The new order", "Pages in their new order", "For example 3, 1, 5-8")};
        case PDFTool::deletePages:
            return {pagesSection("Which pages should go?", "Pages to delete", "For example 2, 4-6")};
        case PDFTool::extractPages:
            return {pagesSection("Which pages do you want?", "Pages to take out", "For example 1-3, 5")};
        case PDFTool::compress:
            return compressionSections();
        case PDFTool::sign:
            return {signatureNote()};
        case PDFTool::addPassword:
            return {passwordSection("Password", "Type a password (at least 4 characters)")};
        case PDFTool::removePassword:
            return {passwordSection("Password", "The password that opens the PDF")};
        case PDFTool::fromImages:
            return pageShapeSections();
        case PDFTool::toImages:
            break;
    }
    return pictureSections();
}

PanelEditor editorOf(PDFTool tool) {
    switch (tool) {
        case PDFTool::organize:
            return PanelEditor::pageOrder;
        case PDFTool::deletePages:
            return PanelEditor::pageDeletion;
        case PDFTool::extractPages:
            return PanelEditor::pageSelection;
        case PDFTool::sign:
            return PanelEditor::signature;
        default:
            return PanelEditor::none;
    }
}

JobWords wordsOf(PDFTool tool) {
    switch (tool) {
        case PDFTool::merge:
            return {"Combine %n file(s)", "Combining %n file(s)", "%n file(s) combined"};
        case PDFTool::split:
            return {"Split %n PDF(s)", "Splitting %n PDF(s)", "%n PDF(s) split"};
        case PDFTool::organize:
            return {"Reorder %n PDF(s)", "Reordering %n PDF(s)", "%n PDF(s) reordered"};
        case PDFTool::deletePages:
            return {"Delete pages from %n PDF(s)", "Deleting pages from %n PDF(s)",
                    "Pages deleted from %n PDF(s)"};
        case PDFTool::extractPages:
            return {"Take pages out of %n PDF(s)", "Taking pages out of %n PDF(s)",
                    "Pages taken out of %n PDF(s)"};
        case PDFTool::compress:
            return {"Make %n PDF(s) smaller", "Making %n PDF(s) smaller", "%n PDF(s) made smaller"};
        case PDFTool::sign:
            return {"Sign %n PDF(s)", "Signing %n PDF(s)", "%n PDF(s) signed"};
        case PDFTool::addPassword:
            return {"Lock %n PDF(s)", "Locking %n PDF(s)", "%n PDF(s) locked"};
        case PDFTool::removePassword:
            return {"Unlock %n PDF(s)", "Unlocking %n PDF(s)", "%n PDF(s) unlocked"};
        case PDFTool::fromImages:
            return {"Make a PDF of %n photo(s)", "Making a PDF of %n photo(s)", "A PDF made of %n photo(s)"};
        case PDFTool::toImages:
            break;
    }
    return {"Turn %n PDF(s) into photos", "Turning %n PDF(s) into photos", "%n PDF(s) turned into photos"};
}

}  // namespace

OptionsPanel pdfPanel(PDFTool tool) {
    return {.sections = sectionsOf(tool), .editor = editorOf(tool), .words = wordsOf(tool)};
}

}  // namespace tamble
