#include <TambleCore/Rename/RenameCopyProcessor.h>
#include <TambleCore/Support/Failure.h>

namespace tamble {

RenameCopyProcessor::RenameCopyProcessor(std::span<const RenameItem> plan) {
    for (const RenameItem& item : plan) {
        names_.emplace(item.file.url.native(), Name{item.newName, item.problem});
    }
}

std::string RenameCopyProcessor::outputName(const InputFile& file) const {
    const Name& name = names_.at(file.url.native());
    if (name.problem == RenameItem::Problem::empty || name.problem == RenameItem::Problem::tooLong) {
        throw Failure(std::string(caseName(*name.problem)), std::string(sentence(*name.problem)));
    }
    return name.newName;
}

void RenameCopyProcessor::process(const InputFile& file, const std::filesystem::path& destination,
                                  const WorkContext& context) const {
    copy_.process(file, destination, context);
}

}  // namespace tamble
