#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Jobs/OutputPlanner.h>
#include <TambleCore/Platform/FileCopy.h>

namespace tamble {

std::string CopyThroughProcessor::outputName(const InputFile& file) const {
    return originalOf(file).filename().native();
}

void CopyThroughProcessor::process(const InputFile& file, const std::filesystem::path& destination,
                                   const WorkContext& context) const {
    context.throwIfStopped();
    copyFileContents(file.url, destination, [&](std::int64_t done, std::int64_t total) {
        context.throwIfStopped();
        if (total > 0) context.report(static_cast<double>(done) / static_cast<double>(total));
    });
}

}  // namespace tamble
