#include <Tamble/Desktop/Gallery/SampleLog.h>
#include <Tamble/Desktop/Gallery/Screens.h>

#include <TambleCore/Images/ImageJobSettings.h>
#include <TambleCore/Rename/RenamePattern.h>
#include <TambleCore/Support/Json/Described.h>

#include <QQuickWindow>
#include <QTest>
#include <array>

namespace tamble::gallery {
namespace {

constexpr int manyCount = 10'000;

void openSearch(Stage& stage) {
    QTest::keyClick(&stage.window(), Qt::Key_K, Qt::ControlModifier);
    QTest::qWait(300);
    for (const char letter : std::string_view("smaller")) QTest::keyClick(&stage.window(), letter);
}

void openNames(Stage& stage) {
    stage.openTool("files.rename", stage.samples().photos());
    stage.app().tool()->change(encodeJson(
        RenamePattern{.base = rename_base::Text{"Goa trip"}, .numbering = RenamePattern::Numbering::after}));
}

/// A job that takes its time.
void beginLongJob(Stage& stage) {
    stage.openTool("image.convert", stage.samples().photos());
    auto settings = ImageJobSettings::defaults(ImageTool::convert);
    settings.output = image_output::Convert{ImageFormat::avif};
    stage.app().tool()->change(encodeJson(settings));
    stage.beginJob();
}

constexpr std::array all{
    Screen{"home", fillActivityLog, nullptr},
    Screen{"drop", fillActivityLog, [](Stage& stage) { stage.drop(stage.samples().photos()); }},
    Screen{"tool", fillActivityLog,
           [](Stage& stage) { stage.openTool("image.convert", stage.samples().photos()); }},
    Screen{"pages", fillActivityLog,
           [](Stage& stage) { stage.openTool("pdf.organize", stage.samples().album()); }},
    Screen{"signature", fillActivityLog,
           [](Stage& stage) { stage.openTool("pdf.sign", stage.samples().letter()); }},
    Screen{"names", fillActivityLog, openNames},
    Screen{"work", fillActivityLog, beginLongJob},
    Screen{"done", fillActivityLog,
           [](Stage& stage) {
               stage.openTool("image.convert", stage.samples().photos());
               stage.finishJob();
           }},
    Screen{"failures", fillActivityLog,
           [](Stage& stage) {
               stage.openTool("image.convert", stage.samples().damagedPhotos());
               stage.finishJob();
           }},
    Screen{"activity", fillActivityLog,
           [](Stage& stage) { stage.app().navigator()->open(Navigator::Activity); }},
    Screen{"activity-empty", nullptr,
           [](Stage& stage) { stage.app().navigator()->open(Navigator::Activity); }},
    Screen{"settings", fillActivityLog,
           [](Stage& stage) { stage.app().navigator()->open(Navigator::Settings); }},
    Screen{"search", fillActivityLog, openSearch},
    Screen{"empty-tool", fillActivityLog,
           [](Stage& stage) { stage.app().openTool(QStringLiteral("image.compress")); }},
    Screen{"long-names", fillActivityLog,
           [](Stage& stage) { stage.openTool("pdf.fromImages", stage.samples().longNames()); }},
    Screen{"many", fillActivityLog,
           [](Stage& stage) { stage.openTool("pdf.fromImages", stage.samples().manyPictures(manyCount)); }},
    Screen{"quit", fillActivityLog,
           [](Stage& stage) {
               beginLongJob(stage);
               stage.window().close();
           }},
    Screen{"interrupted", leaveInterruptedJob, nullptr},
};

}  // namespace

std::span<const Screen> screens() {
    return all;
}

}  // namespace tamble::gallery
