#pragma once

#include <chrono>
#include <string>

#include <sys/types.h>

namespace tamble {

/// How a process ended, from what waitpid() answered: "ended by SIGSEGV", "left with status 1".
std::string processEnd(int status);

/// The processor time that a process has used, all threads together; zero once it has ended.
std::chrono::nanoseconds processorTime(pid_t process);

}  // namespace tamble
