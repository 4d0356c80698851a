#include <TambleCore/Images/ImagePanel.h>
#include <TambleCore/Images/ImageProcessor.h>
#include <TambleCore/Images/ImageTools.h>
#include <TambleCore/Images/SizeEstimator.h>
#include <TambleCore/Intake/FileTypes.h>

namespace tamble {
namespace {

ToolDefinition definition(ImageTool tool) {
    auto definition = makeToolDefinition(
        "image." + std::string(caseName(tool)), ImageJobSettings::defaults(tool),
        [](const ImageJobSettings& settings) { return std::make_unique<ImageProcessor>(settings); });
    definition.schema = imageSettingsSchema();
    definition.panel = imagePanel(tool);
    definition.accepts = FileTypes::isReadableImage;
    definition.unreadable = ConversionError(ConversionError::Case::unreadable);
    definition.estimate = [](std::span<const InputFile> files, const Json& settings, std::stop_token stop) {
        return SizeEstimator::estimateImages(files, decodeJson<ImageJobSettings>(settings),
                                             SizeEstimator::defaultSampleCount, std::move(stop));
    };
    return definition;
}

}  // namespace

std::vector<ToolDefinition> imageTools() {
    std::vector<ToolDefinition> tools;
    for (const ImageTool tool : allCases<ImageTool>()) tools.push_back(definition(tool));
    return tools;
}

}  // namespace tamble
