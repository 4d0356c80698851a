#pragma once

#include <TambleCore/Jobs/ToolDefinition.h>

#include <functional>
#include <span>
#include <string_view>

namespace tamble {

/// Where a worker looks up the tools it is asked for; null for one that it doesn't know.
using ToolLookup = std::function<const ToolDefinition*(std::string_view toolID)>;

/// Is a worker process: enters the sandbox, then serves the requests that come over the descriptor
/// `workerConnection`, one after the other, until that closes; the process ends there and then. Arguments,
/// after the program's name: the folder that may be written to (empty: none) and the memory limit in bytes
/// (0: none). Returns an exit status only when it was not started as a worker.
int runWorker(std::span<char* const> arguments, const ToolLookup& tools);

}  // namespace tamble
