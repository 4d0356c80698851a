#pragma once

#include <TambleCore/PDF/PDFTool.h>
#include <TambleCore/Support/Settings/OptionsPanel.h>

namespace tamble {

/// What the tool lets people choose.
OptionsPanel pdfPanel(PDFTool tool);

}  // namespace tamble
