#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/PDF/SignatureText.h>

namespace tamble {
namespace {

/// From what can just be read to what fine printing takes.
constexpr std::pair<std::int64_t, std::int64_t> resolutions{18, 2400};

std::vector<SettingHint> offered(PDFTool tool) {
    switch (tool) {
        case PDFTool::merge:
            return {{.field = "outputStem", .help = "The name of the new PDF", .flag = "name"}};
        case PDFTool::split:
            return {{.field = "split",
                     .help = "How should it be split? Ranges are page groups, as in ranges:1-3,5,8-10"}};
        case PDFTool::organize:
            return {{.field = "pageList",
                     .help = "The new order, as in 3,1,5-8; :90, :180 or :270 behind a page turns it right",
                     .flag = "pages"}};
        case PDFTool::deletePages:
            return {{.field = "pageList", .help = "The pages to delete, as in 2,4-6", .flag = "delete"}};
        case PDFTool::extractPages:
            return {{.field = "pageList", .help = "The pages to take out, as in 1-3,5", .flag = "take"}};
        case PDFTool::compress:
            return {{.field = "compression", .help = "Pictures for screens, or every page a picture"},
                    {.field = "skipIfNotSmaller", .help = "Leave PDFs alone that would not get smaller"}};
        case PDFTool::sign:
            return {
                {.field = "signatures",
                 .help =
                     "A signature to draw into a page, by default in the lower right corner of page 1; may "
                     "be given several times",
                 .flag = "signature",
                 .parse = withSignature,
                 .syntax = signatureSyntax}};
        case PDFTool::addPassword:
        case PDFTool::removePassword:
            return {};
        case PDFTool::fromImages:
            return {{.field = "pageSize", .help = "The shape of the pages"},
                    {.field = "pageMargin", .help = "A white border around each photo"},
                    {.field = "outputStem", .help = "The name of the new PDF", .flag = "name"}};
        case PDFTool::toImages:
            break;
    }
    return {{.field = "imageFormat", .help = "The format of the pictures", .flag = "to"},
            {.field = "imageDPI", .help = "Dots per inch", .range = resolutions, .flag = "dpi"}};
}

}  // namespace

SettingsSchema pdfSettingsSchema(PDFTool tool) {
    const auto hints = offered(tool);
    SettingsSchema schema = settingsSchema<PDFJobSettings>(hints);
    for (SettingField& field : schema.fields) field.hint.isOffered = !field.hint.field.empty();
    return schema;
}

}  // namespace tamble
