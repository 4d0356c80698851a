#include <TambleCore/Images/ImagePanel.h>
#include <TambleCore/Images/ImageProcessor.h>
#include <TambleCore/Images/ImageTools.h>
#include <TambleCore/Images/SizeEstimator.h>
#include <TambleCore/Intake/FileTypes.h>

namespace tamble {
namespace {

ToolDefinition definition(ImageTool tool) {
    return {
        .id = "image." + std::string(caseName(tool)),
        .defaults = encodeJson(ImageJobSettings::defaults(tool)),
        .schema = imageSettingsSchema(),
        .panel = imagePanel(tool),
        .accepts = FileTypes::isReadableImage,
        .makeWork = [](const Json& settings) -> ToolWork {
            return std::make_unique<ImageProcessor>(decodeJson<ImageJobSettings>(settings));
        },
        .estimate =
            [](std::span<const InputFile> files, const Json& settings, std::stop_token stop) {
                return SizeEstimator::estimateImages(files, decodeJson<ImageJobSettings>(settings),
                                                     SizeEstimator::defaultSampleCount, std::move(stop));
            },
        .normalized = [](const Json& settings) { return encodeJson(decodeJson<ImageJobSettings>(settings)); },
    };
}

}  // namespace

std::vector<ToolDefinition> imageTools() {
    std::vector<ToolDefinition> tools;
    for (const ImageTool tool : allCases<ImageTool>()) tools.push_back(definition(tool));
    return tools;
}

}  // namespace tamble
