#include <Tamble/Model/StoredEntry.h>

#include <TambleCore/Support/Json/JsonElements.h>
#include <TambleCore/Support/Json/JsonText.h>

#include <fmt/format.h>

namespace tamble {

StoredEntry::StoredEntry(const ActivityEntry& entry) {
    std::string text;
    appendJson(text, entry);
    text_ = std::make_shared<const std::string>(std::move(text));
    json_ = *text_;
}

std::vector<StoredEntry> StoredEntry::all(std::string log) {
    const auto text = std::make_shared<const std::string>(std::move(log));
    std::vector<StoredEntry> entries;
    for (const auto json : jsonElements(*text)) entries.push_back({text, json});
    return entries;
}

bool StoredEntry::hasID(std::string_view id) const {
    // As entries are written here; any other is decoded.
    if (json_.starts_with(R"({"id":")")) return json_.starts_with(fmt::format(R"({{"id":"{}")", id));
    try {
        return decoded().id == id;
    } catch (const DecodeError&) {
        return false;
    }
}

ActivityEntry StoredEntry::decoded() const {
    return decodeJson<ActivityEntry>(parseJson(json_));
}

std::vector<std::string_view> logParts(const std::vector<StoredEntry>& entries) {
    std::vector<std::string_view> parts;
    for (const StoredEntry& entry : entries) {
        parts.emplace_back(parts.empty() ? "[" : ",\n");
        parts.push_back(entry.json());
    }
    parts.emplace_back(parts.empty() ? "[]" : "]");
    return parts;
}

}  // namespace tamble
