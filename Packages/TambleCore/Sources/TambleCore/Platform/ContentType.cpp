#include <TambleCore/Platform/ContentType.h>
#include <TambleCore/Platform/ContentTypeTable.h>
#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Support/Text.h>

#include <algorithm>
#include <unordered_map>

#include <fcntl.h>

namespace tamble {
namespace {

using Lines = std::unordered_map<std::string_view, const ContentTypeFacts*>;

const Lines& linesByIdentifier() {
    static const Lines lines = [] {
        Lines result;
        for (const auto& facts : contentTypeTable()) result.emplace(facts.identifier, &facts);
        return result;
    }();
    return lines;
}

const Lines& linesByExtension() {
    static const Lines lines = [] {
        Lines result;
        for (const auto& facts : contentTypeTable()) {
            for (std::string_view rest = facts.extensions; !rest.empty();) {
                const auto end = std::min(rest.find(' '), rest.size());
                result.emplace(rest.substr(0, end), &facts);
                rest.remove_prefix(std::min(end + 1, rest.size()));
            }
        }
        return result;
    }();
    return lines;
}

const ContentTypeFacts* lineFor(const Lines& lines, std::string_view key) {
    const auto found = lines.find(key);
    return found == lines.end() ? nullptr : found->second;
}

}  // namespace

std::optional<ContentType> ContentType::withIdentifier(std::string_view identifier) {
    const auto* facts = lineFor(linesByIdentifier(), identifier);
    return facts == nullptr ? std::nullopt : std::optional(ContentType(*facts));
}

std::optional<ContentType> ContentType::forExtension(std::string_view extension) {
    const auto* facts = lineFor(linesByExtension(), lowercased(extension));
    return facts == nullptr ? std::nullopt : std::optional(ContentType(*facts));
}

std::optional<ContentType> ContentType::of(const std::filesystem::path& file) {
    const auto slash = file.native().rfind('/');
    const std::string_view name = std::string_view(file.native()).substr(slash + 1);
    if (const auto extension = extensionOf(name); !extension.empty()) return forExtension(extension);
    return ofContent(firstBytes(AT_FDCWD, file.c_str(), signatureLength));
}

std::string_view ContentType::identifier() const noexcept {
    return facts_->identifier;
}

bool ContentType::conformsTo(std::string_view identifier) const noexcept {
    for (const auto* facts = facts_; facts != nullptr; facts = moreGeneral(*facts)) {
        if (facts->identifier == identifier) return true;
    }
    return false;
}

std::string_view extensionOf(std::string_view fileName) noexcept {
    const auto dot = fileName.rfind('.');
    return dot == std::string_view::npos || dot == 0 ? std::string_view() : fileName.substr(dot + 1);
}

}  // namespace tamble
