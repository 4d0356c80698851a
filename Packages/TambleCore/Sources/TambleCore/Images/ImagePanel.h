#pragma once

#include <TambleCore/Images/ImageTool.h>
#include <TambleCore/Support/Settings/OptionsPanel.h>

namespace tamble {

/// What each image tool lets people choose.
OptionsPanel imagePanel(ImageTool tool);

}  // namespace tamble
