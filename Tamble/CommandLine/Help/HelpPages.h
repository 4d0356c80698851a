#pragma once

#include <Tamble/CommandLine/Help/HelpPage.h>

#include <TambleCore/Catalog/ToolCatalog.h>

namespace tamble {

/// What the program can do.
HelpPage overviewPage();
HelpPage commandPage(const CommandDescription& command);
HelpPage toolPage(const ToolInfo& info, const ToolDefinition& tool);

/// The texts of a tool's options panel, each choice with the options that choose it.
std::vector<HelpSection> panelSections(const ToolDefinition& tool);

/// Every setting of a tool with its default.
HelpSection settingsSection(const ToolDefinition& tool);

/// Facts that the overview and the manual page share.
HelpSection exitStatusSection();
HelpSection environmentSection();
HelpSection examplesSection();

}  // namespace tamble
