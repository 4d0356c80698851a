#pragma once

#include <TambleCore/Jobs/Isolation/WorkerPool.h>
#include <TambleCore/Jobs/ToolDefinition.h>

namespace tamble {

/// The tool's work with these settings, done by the pool's worker processes; with TAMBLE_IN_PROCESS=1 in the
/// environment, which is there for measuring and debugging, in this one.
ToolWork protectedWork(const ToolDefinition& tool, const Json& settings, const Secrets& secrets,
                       const std::shared_ptr<WorkerPool>& pool);

/// The tool's estimate, made where protectedWork() does its work.
std::optional<std::int64_t> protectedEstimate(const ToolDefinition& tool, std::span<const InputFile> files,
                                              const Json& settings, WorkerPool& pool, std::stop_token stop);

}  // namespace tamble
