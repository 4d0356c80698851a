#include <TambleCore/Catalog/Suggestions.h>
#include <TambleCore/Catalog/ToolCatalog.h>

#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
    const auto ids = [](const KindCounts& counts) {
        std::vector<std::string> suggested;
        for (const auto& tool : suggestedTools(counts)) {
            EXPECT_EQ(ToolCatalog::unavailableReason(tool.id), "") << tool.id;
            EXPECT_EQ(std::ranges::count(suggested, tool.id), 0) << tool.id;
            suggested.push_back(tool.id);
        }
        return suggested;
    };
    const auto firstFour = [&](const KindCounts& counts) {
        auto first = ids(counts);
        first.resize(std::min<std::size_t>(first.size(), 4));
        return first;
    };
    using testing::ElementsAre;
    EXPECT_THAT(firstFour({.images = 128}),
                ElementsAre("image.convert", "image.compress", "image.resize", "image.removeMetadata"));
    // The best for the second kind is among the first.
    EXPECT_THAT(firstFour({.images = 128, .pdfs = 3}),
                ElementsAre("image.convert", "image.compress", "image.removeMetadata", "pdf.merge"));
    EXPECT_THAT(firstFour({.images = 1, .pdfs = 2}),
                ElementsAre("pdf.merge", "pdf.compress", "pdf.split", "image.convert"));
    EXPECT_THAT(firstFour({.images = 9, .pdfs = 8, .documents = 7}),
                ElementsAre("image.convert", "image.compress", "pdf.merge", "files.rename"));
    // One PDF has nothing to be combined with; with a photo it has.
    EXPECT_THAT(firstFour({.pdfs = 1}), ElementsAre("pdf.compress", "pdf.sign", "pdf.split", "pdf.organize"));
    EXPECT_EQ(firstFour({.images = 1, .pdfs = 1}).at(3), "pdf.merge");
    EXPECT_EQ(ids({.images = 3, .pdfs = 1}).size(), ids({.images = 1, .pdfs = 3}).size());
    // What no tool here is made for takes no place.
    EXPECT_THAT(ids({.videos = 2}), ElementsAre("files.rename"));
    EXPECT_TRUE(suggestedTools({}).empty());
}

}  // namespace
}  // namespace tamble
