#include <TambleCore/Rename/RenamePanel.h>
#include <TambleCore/Rename/RenameTools.h>
#include <TambleCore/Rename/Renamer.h>

namespace tamble {

std::vector<ToolDefinition> renameTools() {
    auto definition = makeToolDefinition("files.rename", RenamePattern{}, [](const RenamePattern& pattern) {
        return std::make_unique<Renamer>(pattern);
    });
    definition.schema = renameSchema();
    definition.panel = renamePanel();
    definition.accepts = [](const std::optional<ContentType>&) { return true; };
    std::vector<ToolDefinition> tools;
    tools.push_back(std::move(definition));
    return tools;
}

}  // namespace tamble
