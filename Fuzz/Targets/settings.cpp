// The JSON form and the command line's form of every tool's settings. The first byte chooses tool and form.
#include <TambleCore/Catalog/ToolCatalog.h>

#include "Property.h"

namespace {

using namespace tamble;

std::vector<const ToolDefinition*> definitions() {
    std::vector<const ToolDefinition*> result;
    for (const ToolInfo& tool : ToolCatalog::all()) {
        if (const auto* definition = ToolCatalog::definition(tool.id)) result.push_back(definition);
    }
    return result;
}

/// What decodes must come back the same when written, read and decoded again, and must make a tool.
void checkDecoded(const ToolDefinition& tool, const Json& settings) {
    const Json once = tool.normalized(settings);
    const Json again = tool.normalized(parseJson(writeJson(once)));
    fuzz::require(once == again, "settings that decode come back as they were");
    tool.makeWork(once, {});
}

void readJson(const ToolDefinition& tool, std::string_view text) {
    try {
        const Json document = parseJson(text);
        try {
            checkDecoded(tool, document);
        } catch (const DecodeError&) {
        }
        checkDecoded(tool, tool.schema.merged(tool.defaults, document));
    } catch (const DecodeError&) {
    } catch (const SettingError&) {
    }
}

/// One "name=value" a line, as flags give them.
void readFlags(const ToolDefinition& tool, std::string_view text) {
    Json changes = Json::object();
    try {
        while (!text.empty()) {
            const std::string_view line = text.substr(0, text.find('\n'));
            text.remove_prefix(std::min(line.size() + 1, text.size()));
            const std::size_t equals = line.find('=');
            const SettingField* field = tool.schema.fieldNamed(line.substr(0, equals));
            if (field == nullptr || equals == std::string_view::npos) continue;
            changes[field->name] = settingValue(field->type, line.substr(equals + 1));
        }
        checkDecoded(tool, tool.schema.merged(tool.defaults, changes));
    } catch (const DecodeError&) {
    } catch (const SettingError&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto tools = definitions();
    fuzz::Input input(data, size);
    const std::uint8_t choice = fuzz::takeByte(input);
    const ToolDefinition& tool = *tools[choice / 2 % tools.size()];
    if (choice % 2 == 0) {
        readJson(tool, fuzz::textOf(input));
    } else {
        readFlags(tool, fuzz::textOf(input));
    }
    return 0;
}
