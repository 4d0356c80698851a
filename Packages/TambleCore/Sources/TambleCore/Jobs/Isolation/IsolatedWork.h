#pragma once

#include <TambleCore/Jobs/Isolation/WorkerPool.h>
#include <TambleCore/Jobs/ToolDefinition.h>

/// Tools that do their work in worker processes, so that a file that crashes a decoder costs only itself.
/// Everything about planning (names, skips) is still answered by the tool itself, here.
namespace tamble {

/// The tool's work with these settings, done by the pool's workers. Throws DecodeError as
/// ToolDefinition::makeWork does. The work throws the tool's own failures; when a worker is lost with a file,
/// ToolDefinition::unreadable.
ToolWork isolatedWork(const ToolDefinition& tool, const Json& settings, const Secrets& secrets,
                      std::shared_ptr<WorkerPool> pool);

/// ToolDefinition::estimate, done by a worker; nothing also when the worker is lost or cannot be started.
std::optional<std::int64_t> isolatedEstimate(const ToolDefinition& tool, std::span<const InputFile> files,
                                             const Json& settings, WorkerPool& pool, std::stop_token stop);

/// The staging folder that an output is written in: the nearest folder above it whose name is that of a
/// staging folder, or else the folder it stands in.
std::filesystem::path stagingFolder(const std::filesystem::path& destination);

}  // namespace tamble
