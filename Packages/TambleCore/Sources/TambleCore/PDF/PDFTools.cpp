#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/PDFPanel.h>
#include <TambleCore/PDF/PDFProcessor.h>
#include <TambleCore/PDF/PDFTools.h>

namespace tamble {
namespace {

ContentPredicate accepted(PDFTool tool) {
    if (tool == PDFTool::fromImages) return FileTypes::isReadableImage;
    if (tool != PDFTool::merge) return FileTypes::isPDF;
    return [](const std::optional<ContentType>& type) {
        return FileTypes::isPDF(type) || FileTypes::isReadableImage(type);
    };
}

PasswordUse passwordUse(PDFTool tool) {
    switch (tool) {
        case PDFTool::addPassword:
            return PasswordUse::isNew;
        case PDFTool::removePassword:
            return PasswordUse::required;
        case PDFTool::fromImages:
            return PasswordUse::none;
        default:
            return PasswordUse::opensInputs;
    }
}

ToolDefinition definition(PDFTool tool) {
    auto definition = makeToolDefinition("pdf." + std::string(caseName(tool)), PDFJobSettings{},
                                         [tool](const PDFJobSettings& settings) -> ToolWork {
                                             if (tool == PDFTool::merge || tool == PDFTool::fromImages)
                                                 return std::make_unique<PDFCombiner>(tool, settings);
                                             return std::make_unique<PDFProcessor>(tool, settings);
                                         });
    definition.schema = pdfSettingsSchema(tool);
    definition.panel = pdfPanel(tool);
    definition.accepts = accepted(tool);
    definition.password = passwordUse(tool);
    definition.unreadable = PDFError(PDFError::Case::unreadable);
    return definition;
}

}  // namespace

std::vector<ToolDefinition> pdfTools() {
    std::vector<ToolDefinition> tools;
    for (const PDFTool tool : allCases<PDFTool>()) tools.push_back(definition(tool));
    return tools;
}

}  // namespace tamble
