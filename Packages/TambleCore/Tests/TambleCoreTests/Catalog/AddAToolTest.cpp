#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Jobs/JobEngine.h>
#include <TambleCore/Jobs/ToolDefinition.h>
#include <TambleCore/Platform/SystemFileOperations.h>

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace tamble {

// The code of ARCHITECTURE.md's "Add a tool", taken out of the page by the build.
#include "AddATool.inc"

namespace {

TEST(AddATool, TheCodeOfTheArchitecturePageIsATool) {
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "AddATool";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "poem.txt") << "one\n\ntwo\nthree\n";
    const std::vector<InputFile> files{{.url = folder / "poem.txt", .root = folder, .isLoose = true}};

    const ToolDefinition tool = headTool();
    const Json settings =
        tool.normalized(tool.schema.merged(tool.defaults, {{"lines", 2}, {"skipEmptyLines", true}}));
    const auto work = std::get<std::unique_ptr<FileProcessor>>(tool.makeWork(settings, {}));
    const JobEngine engine{.fileOps = std::make_shared<SystemFileOperations>()};
    const JobResult result = engine.run(files, *work, {});

    ASSERT_EQ(result.items.size(), 1U);
    ASSERT_TRUE(std::holds_alternative<outcome::Done>(result.items.front().outcome));
    std::stringstream text;
    text << std::ifstream(folder / "poem head.txt").rdbuf();
    EXPECT_EQ(text.str(), "one\ntwo\n");
    EXPECT_THROW(tool.schema.merged(tool.defaults, {{"line", 2}}), SettingError);
    EXPECT_THROW(tool.normalized({{"lines", "two"}, {"skipEmptyLines", true}}), DecodeError);
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tamble
