#pragma once

class QQuickWindow;

namespace tamble {

/// Where TAMBLE_FIRST_FRAME is set: prints the milliseconds from the start of the program to the moment the
/// first frame of the window is on the screen, for benchmarks.
void tellFirstFrame(QQuickWindow& window);

}  // namespace tamble
