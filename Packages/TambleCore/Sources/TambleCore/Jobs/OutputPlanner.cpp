#include <TambleCore/Jobs/FileNames.h>
#include <TambleCore/Jobs/OutputPlanner.h>

namespace tamble {
namespace {

std::filesystem::path folderInside(const location::Folder& chosen, const InputFile& file) {
    if (!chosen.keepStructure || file.isLoose || file.root.empty()) return chosen.value;
    std::filesystem::path folder = chosen.value / file.root.lexically_normal().filename();
    if (!file.relativeFolder.empty()) folder /= file.relativeFolder;
    return folder;
}

}  // namespace

const FilePath& originalOf(const InputFile& file) {
    return file.originalURL ? *file.originalURL : file.url;
}

std::filesystem::path OutputPlanner::intendedURL(const InputFile& file, const std::string& outputName) const {
    const std::string name = FileNames::fitted(outputName);
    if (const auto* chosen = std::get_if<location::Folder>(&location))
        return folderInside(*chosen, file) / name;
    return originalOf(file).parent_path() / name;
}

}  // namespace tamble
