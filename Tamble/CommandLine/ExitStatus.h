#pragma once

namespace tamble {

/// What the program answers to whoever started it.
enum class ExitStatus {
    allDone = 0,
    someFailed = 1,
    wrongUsage = 2,
    /// 128 and the number of SIGINT, as shells answer for a program that Ctrl-C ended.
    interrupted = 130,
};

}  // namespace tamble
