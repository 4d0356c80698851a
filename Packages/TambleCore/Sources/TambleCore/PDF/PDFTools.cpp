#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/PDFPanel.h>
#include <TambleCore/PDF/PDFProcessor.h>
#include <TambleCore/PDF/PDFTools.h>
#include <TambleCore/Support/Text.h>

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

/// What a tool cannot start without.
std::optional<PDFError> missing(PDFTool tool, const PDFJobSettings& settings, const Secrets& secrets) {
    using enum PDFError::Case;
    switch (tool) {
        case PDFTool::organize:
        case PDFTool::deletePages:
        case PDFTool::extractPages:
            if (settings.pages && settings.pages->empty()) return PDFError(noPages);
            if (!settings.pages && settings.pageList.value_or("").empty()) return PDFError(pagesMissing);
            return std::nullopt;
        case PDFTool::split: {
            const auto* ranges = std::get_if<split_mode::Ranges>(&settings.split);
            return ranges != nullptr && ranges->value.empty() ? std::optional(PDFError(pagesMissing))
                                                              : std::nullopt;
        }
        case PDFTool::sign:
            return settings.signatures.empty() ? std::optional(PDFError(signatureMissing)) : std::nullopt;
        case PDFTool::addPassword:
            return characterCount(secrets.password) < shortestPassword
                       ? std::optional(PDFError(passwordMissing))
                       : std::nullopt;
        case PDFTool::removePassword:
            return secrets.password.empty() ? std::optional(PDFError(locked)) : std::nullopt;
        default:
            return std::nullopt;
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
    definition.missing = [tool](const Json& settings, const Secrets& secrets) -> std::optional<Failure> {
        return missing(tool, decodeJson<PDFJobSettings>(settings), secrets);
    };
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
