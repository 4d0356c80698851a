#include <TambleCore/Catalog/Suggestions.h>
#include <TambleCore/Catalog/ToolCatalog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace tamble {
namespace {

std::vector<std::string> ids(std::span<const ToolInfo> tools) {
    std::vector<std::string> result;
    for (const auto& tool : tools) result.push_back(tool.id);
    return result;
}

template <typename Tool>
void expectOneEntryEach() {
    for (const Tool tool : allCases<Tool>()) {
        const auto matches = std::ranges::count(ToolCatalog::all(), ToolKind(tool), &ToolInfo::kind);
        EXPECT_EQ(matches, 1) << caseName(tool);
    }
}

TEST(ToolCatalog, HoldsEveryToolOfEveryFamilyOnce) {
    EXPECT_EQ(ToolCatalog::all().size(), 39U);
    expectOneEntryEach<ImageTool>();
    expectOneEntryEach<VideoTool>();
    expectOneEntryEach<AudioTool>();
    expectOneEntryEach<PDFTool>();
    expectOneEntryEach<SmartTool>();
    expectOneEntryEach<FileTool>();
    const auto all = ids(ToolCatalog::all());
    EXPECT_EQ(std::set(all.begin(), all.end()).size(), all.size());
}

TEST(ToolCatalog, KeepsTheStoredIdOfTheVideoSoundTool) {
    const ToolInfo* tool = ToolCatalog::withID("video.audio");
    ASSERT_NE(tool, nullptr);
    EXPECT_EQ(tool->kind, ToolKind(VideoTool::extractAudio));
    EXPECT_EQ(tool->title, "Get the audio");
    EXPECT_EQ(ToolCatalog::withID("video.extractAudio"), nullptr);
}

TEST(ToolCatalog, FiltersInCatalogOrder) {
    EXPECT_THAT(ids(ToolCatalog::inCategory(ToolCategory::images)),
                testing::ElementsAre("image.convert", "image.compress", "image.resize", "image.rotate",
                                     "image.removeMetadata", "image.removeBackground"));
    EXPECT_THAT(ids(ToolCatalog::inCategory(ToolCategory::files)), testing::ElementsAre("files.rename"));
}

TEST(ToolCatalog, EveryToolEitherRunsOrSaysWhyNot) {
    for (const auto& tool : ToolCatalog::all()) {
        const ToolDefinition* definition = ToolCatalog::definition(tool.id);
        EXPECT_EQ(definition == nullptr, !ToolCatalog::unavailableReason(tool.id).empty()) << tool.id;
        if (definition == nullptr) continue;
        EXPECT_EQ(definition->normalized(definition->defaults), definition->defaults) << tool.id;
        EXPECT_FALSE(definition->panel.sections.empty()) << tool.id;
    }
}

TEST(ToolCatalog, EveryChoiceOfAPanelGivesSettingsThatTheToolTakes) {
    for (const auto& tool : ToolCatalog::all()) {
        const ToolDefinition* definition = ToolCatalog::definition(tool.id);
        if (definition == nullptr) continue;
        for (const auto& section : definition->panel.sections) {
            auto choices = section.choices;
            choices.insert(choices.end(), section.moreChoices.begin(), section.moreChoices.end());
            for (const auto& choice : choices) {
                const Json settings = definition->schema.merged(definition->defaults, choice.changes);
                // The order of members is the record's, or that of the changes.
                EXPECT_EQ(nlohmann::json(definition->normalized(settings)), nlohmann::json(settings))
                    << tool.id << ": " << choice.label;
            }
        }
    }
}

TEST(Suggestions, LeadWithTheMostFrequentKindAndNameOnlyToolsThatRun) {
    const auto tools = suggestedTools({.images = 3, .pdfs = 1});
    ASSERT_FALSE(tools.empty());
    EXPECT_EQ(tools.front().id, "image.convert");
    for (const auto& tool : tools) EXPECT_EQ(ToolCatalog::unavailableReason(tool.id), "") << tool.id;
    EXPECT_TRUE(suggestedTools({}).empty());
}

}  // namespace
}  // namespace tamble
