#include <TambleCore/Jobs/FileNames.h>
#include <TambleCore/Support/NameFitting.h>
#include <TambleCore/Support/Text.h>

#include <fmt/format.h>

#include <algorithm>

namespace tamble::FileNames {
namespace {

struct SplitName {
    std::string_view stem;
    /// With its dot.
    std::string_view extension;
    /// "/" for a folder.
    std::string_view slash;
};

SplitName split(std::string_view name) {
    if (name.ends_with('/')) return {.stem = name.substr(0, name.size() - 1), .extension = {}, .slash = "/"};
    const std::size_t dot = extensionStart(name);
    return {.stem = name.substr(0, dot), .extension = name.substr(dot), .slash = {}};
}

}  // namespace

std::string safe(std::string_view name) {
    std::string cleaned(name);
    std::ranges::replace(cleaned, '/', '-');
    std::ranges::replace(cleaned, ':', '-');
    std::string_view rest = trimmed(cleaned);
    while (rest.starts_with('.')) rest = trimmed(rest.substr(1));
    return rest.empty() ? "Untitled" : std::string(rest);
}

std::string suffixed(std::string_view stem, std::string_view suffix, std::string_view extension) {
    return fittedName(stem, fmt::format("{}{}{}", suffix, extension.empty() ? "" : ".", extension));
}

std::string joined(std::string_view stem, std::string_view extension) {
    return stem.empty() ? suffixed("Joined", "", extension) : suffixed(stem, " joined", extension);
}

std::string numbered(const std::string& name, int number) {
    const SplitName parts = split(name);
    return fittedName(parts.stem, fmt::format(" {}{}", number, parts.extension)).append(parts.slash);
}

std::string fitted(const std::string& name) {
    const SplitName parts = split(name);
    return fittedName(parts.stem, parts.extension).append(parts.slash);
}

std::string stem(const std::filesystem::path& file) {
    const std::string name = file.filename().native();
    return name.substr(0, extensionStart(name));
}

}  // namespace tamble::FileNames
