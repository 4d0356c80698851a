#pragma once

#include <Tamble/Desktop/Gallery/Stage.h>

#include <span>
#include <string_view>

namespace tamble::gallery {

/// Something of the window to be looked at.
struct Screen {
    std::string_view name;
    /// What has to be in the user's folders before the window opens; may be null.
    void (*prepare)();
    /// The way there; may be null.
    void (*go)(Stage& stage);
};

std::span<const Screen> screens();

}  // namespace tamble::gallery
