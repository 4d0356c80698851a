#include <Tamble/Model/ChosenHelpers.h>
#include <Tamble/Model/ProtectedWork.h>

#include <TambleCore/Jobs/Isolation/IsolatedWork.h>

#include <cstdlib>

namespace tamble {
namespace {

bool worksInProcess() {
    const char* value = std::getenv("TAMBLE_IN_PROCESS");
    return value != nullptr && std::string_view(value) == "1";
}

}  // namespace

ToolWork protectedWork(const ToolDefinition& tool, const Json& settings, const Secrets& secrets,
                       const std::shared_ptr<WorkerPool>& pool) {
    if (worksInProcess()) return tool.makeWork(settings, secrets);
    pool->setEnvironment(chosenHelpers(PreferencesStore()));
    return isolatedWork(tool, settings, secrets, pool);
}

std::optional<std::int64_t> protectedEstimate(const ToolDefinition& tool, std::span<const InputFile> files,
                                              const Json& settings, WorkerPool& pool, std::stop_token stop) {
    if (!tool.estimate) return std::nullopt;
    if (worksInProcess()) return tool.estimate(files, settings, stop);
    return isolatedEstimate(tool, files, settings, pool, stop);
}

}  // namespace tamble
