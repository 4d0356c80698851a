#pragma once

#include <TambleCore/Jobs/FileRenamer.h>
#include <TambleCore/Support/Settings/OptionsPanel.h>

namespace tamble {

OptionsPanel renamePanel();

/// The choice that a job makes beside the panel, as people read it.
struct RenameWayText {
    std::string_view label;
    std::string_view description;
};
RenameWayText textOf(RenameWay way);

}  // namespace tamble
