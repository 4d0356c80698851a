#include <TambleCore/Support/WorkContext.h>

namespace tamble {

Cancelled::~Cancelled() = default;

const char* Cancelled::what() const noexcept {
    return "Cancelled";
}

void WorkContext::throwIfStopped() const {
    if (stop.stop_requested()) throw Cancelled();
}

}  // namespace tamble
