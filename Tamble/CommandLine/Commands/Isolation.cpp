#include <Tamble/CommandLine/Commands/Isolation.h>

#include <TambleCore/Jobs/Isolation/IsolatedWork.h>

#include <cstdlib>

namespace tamble {
namespace {

bool worksInProcess() {
    const char* value = std::getenv("TAMBLE_IN_PROCESS");
    return value != nullptr && std::string_view(value) == "1";
}

}  // namespace

ToolWork protectedWork(const ToolDefinition& tool, const Json& settings, const Secrets& secrets) {
    if (worksInProcess()) return tool.makeWork(settings, secrets);
    return isolatedWork(tool, settings, secrets, std::make_shared<WorkerPool>());
}

std::optional<std::int64_t> protectedEstimate(const ToolDefinition& tool, std::span<const InputFile> files,
                                              const Json& settings) {
    if (!tool.estimate) return std::nullopt;
    if (worksInProcess()) return tool.estimate(files, settings, {});
    WorkerPool pool;
    return isolatedEstimate(tool, files, settings, pool, {});
}

}  // namespace tamble
