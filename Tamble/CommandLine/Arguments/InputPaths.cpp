#include <Tamble/CommandLine/Arguments/InputPaths.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>

#include <TambleCore/Support/PathKey.h>

#include <string>

#include <fmt/format.h>

namespace tamble {
namespace {

std::filesystem::path existing(const std::string& operand) {
    std::error_code error;
    const auto status = std::filesystem::symlink_status(operand, error);
    if (!std::filesystem::exists(status))
        throw UsageError(fmt::format("There is no file or folder “{}”.", operand));
    return standardized(operand);
}

}  // namespace

std::vector<std::filesystem::path> inputPaths(const CommandDescription& command,
                                              const ParsedArguments& arguments, std::istream& input) {
    std::vector<std::filesystem::path> paths;
    for (const auto& operand : arguments.operands) paths.push_back(existing(operand));
    const bool isListed = arguments.has("null");
    if (isListed) {
        for (std::string path; std::getline(input, path, '\0');) {
            if (!path.empty()) paths.push_back(standardized(path));
        }
    }
    if (paths.empty()) {
        throw UsageError(isListed ? "There are no paths on standard input."
                                  : fmt::format("{} needs files or folders to work on.", command.name));
    }
    return paths;
}

}  // namespace tamble
