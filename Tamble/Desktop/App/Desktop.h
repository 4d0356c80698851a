#pragma once

namespace tamble {

/// Opens the window and runs until it is closed, or hands its files to the one that is open already. Answers
/// the exit status.
int runDesktop(int argumentCount, char** arguments);

}  // namespace tamble
