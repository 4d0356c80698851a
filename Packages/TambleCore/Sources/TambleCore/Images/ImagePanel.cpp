#include <TambleCore/Images/ImageJobSettings.h>
#include <TambleCore/Images/ImagePanel.h>

namespace tamble {
namespace {

PanelChoice formatChoice(ImageFormat format, std::string description) {
    return {.label = std::string(displayName(format)),
            .description = std::move(description),
            .changes = settingChange("output", ImageJobSettings::Output(image_output::Convert{format}))};
}

PanelSection formatSection() {
    return {
        .heading = "New format",
        .control = PanelControl::cards,
        .choices = {formatChoice(ImageFormat::webp, "Best for websites and blogs. Much smaller, same look."),
                    formatChoice(ImageFormat::jpeg, "Opens on every phone, computer and website."),
                    formatChoice(ImageFormat::png, "Keeps see-through backgrounds. Bigger files."),
                    formatChoice(ImageFormat::heic, "Apple's photo format. Small and sharp.")},
        .moreLabel = "More formats (TIFF, GIF, AVIF)…",
        .moreChoices = {formatChoice(ImageFormat::tiff, "For printing and editing. Very large files."),
                        formatChoice(ImageFormat::gif, "Simple pictures and logos. Limited colours."),
                        formatChoice(ImageFormat::avif, "Newest web format. Very small files.")},
        .note = "Not sure? JPEG if you're sending photos to people, WebP if they're going on a website."};
}

PanelSection qualitySection() {
    using Quality = ImageJobSettings::Quality;
    return {.heading = "Quality",
            .control = PanelControl::segments,
            .choices = {{.label = "Smaller",
                         .description = "Noticeably smaller. Fine for chat apps.",
                         .changes = settingChange("quality", Quality::smaller)},
                        {.label = "Balanced",
                         .description = "You won't see a difference. Recommended.",
                         .changes = settingChange("quality", Quality::balanced)},
                        {.label = "Best",
                         .description = "Almost no change. Smaller savings.",
                         .changes = settingChange("quality", Quality::best)}}};
}

PanelSection pngNote() {
    return {
        .control = PanelControl::note,
        .note =
            "PNG files can't get much smaller without changing format. For big savings, convert them to WebP "
            "or JPEG instead.",
        .onlyWith = settingChange("output", ImageJobSettings::Output(image_output::KeepFormat{})),
        .onlyForType = std::string(contentTypeIdentifier(ImageFormat::png))};
}

PanelChoice sizeChoice(std::string label, int pixels) {
    return {.label = std::move(label), .changes = settingChange("maxPixelSize", pixels)};
}

std::vector<PanelSection> resizeSections() {
    const SettingsSchema schema = imageSettingsSchema();
    return {{.heading = "How big should they be?",
             .control = PanelControl::cards,
             .choices = {sizeChoice("3840 px · 4K screens", 3840), sizeChoice("2560 px · big screens", 2560),
                         sizeChoice("1920 px · good for most uses", 1920),
                         sizeChoice("1280 px · websites", 1280), sizeChoice("800 px · email and chat", 800)}},
            {.heading = "Or longest side:",
             .control = PanelControl::number,
             .choices = {{.label = "Longest side in pixels"}},
             .setting = "maxPixelSize",
             .range = schema.fieldNamed("maxPixelSize")->hint.range.value(),
             .note = "Photos are never made bigger than they already are."}};
}

PanelChoice rotationChoice(std::string label, ImageJobSettings::Rotation rotation) {
    return {.label = std::move(label), .changes = settingChange("rotation", rotation)};
}

PanelSection rotationSection() {
    using Rotation = ImageJobSettings::Rotation;
    return {
        .heading = "Turn or mirror",
        .control = PanelControl::cards,
        .choices = {rotationChoice("As it is", Rotation::none), rotationChoice("Turn right", Rotation::right),
                    rotationChoice("Turn left", Rotation::left),
                    rotationChoice("Turn upside down", Rotation::upsideDown),
                    rotationChoice("Mirror left to right", Rotation::flipHorizontal),
                    rotationChoice("Mirror upside down", Rotation::flipVertical)}};
}

/// One of the two kinds of removal; each undoes the other.
PanelChoice removalChoice(std::string label, std::string description, bool everything) {
    Json changes = settingChange("removeLocation", !everything);
    changes["removeAllMetadata"] = everything;
    return {.label = std::move(label), .description = std::move(description), .changes = std::move(changes)};
}

std::vector<PanelSection> removalSections() {
    return {
        {.heading = "What should be removed?",
         .control = PanelControl::cards,
         .choices = {removalChoice("Location only", "Where the photo was taken. Camera and date stay.",
                                   false),
                     removalChoice("Everything hidden",
                                   "Location, camera, dates and other details. Photos stay upright.", true)}},
        {.control = PanelControl::toggle,
         .choices = {
             {.label = "Keep the picture as it is",
              .description = "When possible the picture itself isn't re-saved, so quality stays exactly "
                             "the same.",
              .changes = settingChange("preferLosslessMetadataEdit", true)},
             {.changes = settingChange("preferLosslessMetadataEdit", false)}}}};
}

PanelSection backgroundNote() {
    return {
        .heading = "Cut out the subject",
        .control = PanelControl::note,
        .note =
            "Tamble finds the main subject (a person, pet or object) and makes the background see-through. "
            "Everything happens on your Mac.\n"
            "Works best when the subject stands out clearly from the background."};
}

std::vector<PanelSection> sectionsOf(ImageTool tool) {
    switch (tool) {
        case ImageTool::convert:
            return {formatSection(), qualitySection()};
        case ImageTool::compress:
            return {qualitySection(), pngNote()};
        case ImageTool::resize:
            return resizeSections();
        case ImageTool::rotate:
            return {rotationSection()};
        case ImageTool::removeMetadata:
            return removalSections();
        case ImageTool::removeBackground:
            break;
    }
    return {backgroundNote()};
}

JobWords wordsOf(ImageTool tool) {
    switch (tool) {
        case ImageTool::convert:
            return {"Convert %n photo(s)", "Converting %n photo(s)", "%n photo(s) converted"};
        case ImageTool::compress:
            return {"Make %n photo(s) smaller", "Making %n photo(s) smaller", "%n photo(s) made smaller"};
        case ImageTool::resize:
            return {"Resize %n photo(s)", "Resizing %n photo(s)", "%n photo(s) resized"};
        case ImageTool::rotate:
            return {"Turn %n photo(s)", "Turning %n photo(s)", "%n photo(s) turned"};
        case ImageTool::removeMetadata:
            return {"Clean %n photo(s)", "Cleaning %n photo(s)", "%n photo(s) cleaned"};
        case ImageTool::removeBackground:
            break;
    }
    return {"Remove %n background(s)", "Removing %n background(s)", "%n background(s) removed"};
}

}  // namespace

OptionsPanel imagePanel(ImageTool tool) {
    return {.sections = sectionsOf(tool), .editor = PanelEditor::comparison, .words = wordsOf(tool)};
}

}  // namespace tamble
