#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Arguments/JobArguments.h>
#include <Tamble/CommandLine/Arguments/SettingsArguments.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Images/ImageJobSettings.h>

#include <iomanip>
#include <set>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using Words = std::vector<std::string>;
using testing::ElementsAre;
using testing::HasSubstr;

const ToolDefinition& tool(std::string_view id) {
    return *ToolCatalog::definition(id);
}

ParsedArguments parsed(std::string_view id, const Words& words) {
    return parseArguments(toolCommand(tool(id)), words);
}

ImageJobSettings settings(std::string_view id, const Words& words) {
    return decodeJson<ImageJobSettings>(settingsFrom(tool(id), parsed(id, words)));
}

/// The sentence that the words are refused with; empty when they are not.
std::string refusal(std::string_view id, const Words& words) {
    try {
        const auto arguments = parsed(id, words);
        settingsFrom(tool(id), arguments);
        jobConfiguration(arguments);
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

TEST(ArgumentParser, OptionsAndOperandsMayMix) {
    const auto arguments =
        parsed("image.convert", {"a.jpg", "--to", "png", "[0].jpg", "-nj2", "--quality=best", "b"});
    EXPECT_THAT(arguments.operands, ElementsAre("a.jpg", "[0].jpg", "b"));
    EXPECT_EQ(arguments.value("to"), "png");
    EXPECT_EQ(arguments.value("jobs"), "2");
    EXPECT_EQ(arguments.value("quality"), "best");
    EXPECT_TRUE(arguments.has("dry-run"));
}

TEST(ArgumentParser, EverythingBehindTwoDashesIsAnOperand) {
    const auto arguments = parsed("image.convert", {"--json", "--", "-n", "--", "--to"});
    EXPECT_THAT(arguments.operands, ElementsAre("-n", "--", "--to"));
    EXPECT_FALSE(arguments.has("dry-run"));
}

TEST(ArgumentParser, ASwitchTakesOnlyTrueAndFalse) {
    EXPECT_TRUE(settings("image.convert", {"--remove-location", "photo.jpg"}).removeLocation);
    EXPECT_THAT(parsed("image.convert", {"--remove-location", "photo.jpg"}).operands,
                ElementsAre("photo.jpg"));
    EXPECT_FALSE(
        settings("image.removeMetadata", {"--remove-location", "false", "photo.jpg"}).removeLocation);
    EXPECT_FALSE(settings("image.removeMetadata", {"--no-remove-location"}).removeLocation);
    EXPECT_TRUE(settings("image.convert", {"--no-remove-location", "--remove-location=true"}).removeLocation);
}

TEST(ArgumentParser, RefusesWithASentenceAndTheNearestWord) {
    EXPECT_EQ(refusal("image.convert", {"--qualty", "best"}),
              "image.convert has no option --qualty. Did you mean --quality?");
    EXPECT_THAT(refusal("image.convert", {"-x"}), HasSubstr("no option -x."));
    EXPECT_THAT(refusal("image.convert", {"a", "--to"}), HasSubstr("--to needs a value: webp|jpeg"));
    EXPECT_EQ(refusal("image.convert", {"--json=1"}), "--json takes no value.");
    EXPECT_THAT(refusal("image.convert", {"--to=", "a"}), HasSubstr("no value behind"));
    EXPECT_THAT(refusal("image.convert", {"--to", "wepb"}), HasSubstr("Did you mean “webp”?"));
    EXPECT_THAT(refusal("image.convert", {"--remove-location=maybe"}), HasSubstr("neither true nor false"));
    EXPECT_THAT(refusal("image.resize", {"--size", "0"}), HasSubstr("between 1 and"));
    EXPECT_THAT(refusal("image.resize", {"--size", "12px"}), HasSubstr("not a whole number"));
    EXPECT_THAT(refusal("image.convert", {"--settings", "{\"qualty\": \"best\"}"}), HasSubstr("“quality”"));
    EXPECT_THAT(refusal("image.convert", {"--settings", "{"}), HasSubstr("--settings: "));
    EXPECT_THAT(refusal("image.convert", {"--settings", "{\"quality\": 3}"}), HasSubstr("quality"));
    EXPECT_THAT(refusal("image.convert", {"--settings", "@/no/such/file"}), HasSubstr("can't be read"));
}

TEST(SettingsArguments, CodeFlagsAndJsonMakeTheSameValue) {
    ImageJobSettings expected = ImageJobSettings::defaults(ImageTool::resize);
    expected.output = image_output::Convert{ImageFormat::avif};
    expected.quality = ImageJobSettings::Quality::smaller;
    expected.maxPixelSize = 1280;
    expected.rotation = ImageJobSettings::Rotation::flipVertical;
    expected.removeAllMetadata = true;

    const Words flags{"--to",       "avif",         "--quality",
                      "smaller",    "--size",       "1280",
                      "--rotation", "flipVertical", "--remove-all-metadata"};
    const Words longFlags{"--output", "convert:avif", "--quality=smaller", "--max-pixel-size",
                          "1280",     "--rotation",   "flipVertical",      "--remove-all-metadata",
                          "true"};
    EXPECT_EQ(settings("image.resize", flags), expected);
    EXPECT_EQ(settings("image.resize", longFlags), expected);
    EXPECT_EQ(settings("image.resize", {"--settings", writeJson(encodeJson(expected))}), expected);
    EXPECT_EQ(settingsFrom(tool("image.resize"), parsed("image.resize", flags)), encodeJson(expected));
}

TEST(SettingsArguments, AWholeDocumentStandsForItselfAndAPartChangesTheDefaults) {
    ImageJobSettings whole = ImageJobSettings::defaults(ImageTool::resize);
    whole.maxPixelSize.reset();
    EXPECT_EQ(settings("image.resize", {"--settings", writeJson(encodeJson(whole))}), whole);

    ImageJobSettings changed = ImageJobSettings::defaults(ImageTool::resize);
    changed.quality = ImageJobSettings::Quality::best;
    EXPECT_EQ(settings("image.resize", {"--settings", "{\"quality\": \"best\"}"}), changed);
    // Flags come after it, wherever they stand.
    changed.maxPixelSize.reset();
    EXPECT_EQ(settings("image.resize", {"--size", "none", "--settings", "{\"quality\": \"best\"}"}), changed);
}

TEST(SettingsArguments, EveryChoiceOfEveryPanelCanBeTypedAsHelpShowsIt) {
    for (const ToolInfo& info : ToolCatalog::all()) {
        const ToolDefinition* definition = ToolCatalog::definition(info.id);
        if (definition == nullptr) continue;
        for (const auto& section : definition->panel.sections) {
            std::vector<PanelChoice> choices = section.choices;
            choices.insert(choices.end(), section.moreChoices.begin(), section.moreChoices.end());
            for (const auto& choice : choices) {
                std::istringstream words(flagsFor(definition->schema, choice.changes));
                Words typed;
                // As a shell reads them.
                for (std::string word; words >> std::quoted(word);) typed.push_back(word);
                EXPECT_EQ(
                    settingsFrom(*definition, parsed(info.id, typed)),
                    definition->normalized(definition->schema.merged(definition->defaults, choice.changes)))
                    << info.id << ": " << words.str();
            }
        }
    }
}

TEST(CommandTable, NoToolHasTwoOptionsOfOneName) {
    for (const ToolInfo& info : ToolCatalog::all()) {
        if (ToolCatalog::definition(info.id) == nullptr) continue;
        std::set<std::string> names;
        for (const auto& option : toolCommand(tool(info.id)).options) {
            EXPECT_TRUE(names.insert(option.name).second) << info.id << " --" << option.name;
        }
    }
}

TEST(JobArguments, SaysWhereToSave) {
    const auto configuration = [](const Words& words) {
        return jobConfiguration(parsed("image.convert", words));
    };
    EXPECT_TRUE(std::holds_alternative<location::NextToOriginal>(configuration({}).location));
    EXPECT_TRUE(
        std::holds_alternative<location::ReplaceOriginals>(configuration({"--save", "replace"}).location));
    const auto folder = std::get<location::Folder>(
        configuration({"--save", "./out/../new", "--keep-structure", "--clash", "skip"}).location);
    EXPECT_EQ(folder.value, std::filesystem::current_path() / "new");
    EXPECT_TRUE(folder.keepStructure);
    EXPECT_EQ(configuration({"--clash", "skip"}).clashPolicy, ClashPolicy::skip);
    EXPECT_EQ(configuration({"-j3"}).maxConcurrent, 3);

    EXPECT_THAT(refusal("image.convert", {"--save", "replce"}), HasSubstr("Did you mean “replace”?"));
    EXPECT_THAT(refusal("image.convert", {"--keep-structure"}), HasSubstr("--save DIR"));
    EXPECT_THAT(refusal("image.convert", {"--clash", "addnumber"}), HasSubstr("“addNumber”"));
    EXPECT_THAT(refusal("image.convert", {"--jobs", "0"}), HasSubstr("from 1 to"));
    EXPECT_THAT(refusal("image.convert", {"--save", "/dev/null"}), HasSubstr("not a folder"));
}

}  // namespace
}  // namespace tamble
