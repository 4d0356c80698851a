#include <Tamble/Model/GoneFiles.h>
#include <Tamble/Model/ToolSession.h>

#include <fstream>

#include <TambleCoreTests/TemporaryFolder.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

InputFile file(const std::string& name, const char* type, std::int64_t size = 1) {
    return {.url = FilePath("/drop/" + name),
            .root = FilePath("/drop"),
            .byteSize = size,
            .contentType = ContentType::withIdentifier(type),
            .isLoose = true};
}

std::vector<std::string> names(const ToolSession& session) {
    std::vector<std::string> names;
    for (const InputFile& each : session.files()) names.push_back(each.url.filename());
    return names;
}

ToolSession sessionOf(const char* tool) {
    return ToolSession(*ToolCatalog::withID(tool));
}

TEST(ToolSession, TakesEachFileItWorksWithOnce) {
    ToolSession session = sessionOf("image.convert");
    const std::vector<InputFile> drop{file("10.jpg", "public.jpeg"), file("a.pdf", "com.adobe.pdf"),
                                      file("2.png", "public.png")};
    EXPECT_EQ(session.add(drop), 2U);
    EXPECT_EQ(session.add(drop), 0U);
    EXPECT_THAT(names(session), ElementsAre("10.jpg", "2.png"));
}

TEST(ToolSession, SortsMovesAndRemovesWithoutLosingTheDroppedOrder) {
    ToolSession session = sessionOf("files.rename");
    session.add(std::vector{file("10.jpg", "public.jpeg", 5), file("2.png", "public.png", 9),
                            file("b.jpg", "public.jpeg", 7)});
    session.sort(FileOrder::byName);
    EXPECT_THAT(names(session), ElementsAre("2.png", "10.jpg", "b.jpg")) << "numbers by value";
    session.sort(FileOrder::bySize);
    EXPECT_THAT(names(session), ElementsAre("2.png", "b.jpg", "10.jpg")) << "largest first";
    session.move(2, 0);
    EXPECT_THAT(names(session), ElementsAre("10.jpg", "2.png", "b.jpg"));
    session.sort(FileOrder::byKind);
    EXPECT_THAT(names(session), ElementsAre("10.jpg", "b.jpg", "2.png"));
    session.remove(std::vector<std::size_t>{1});
    session.add(std::vector{file("new.gif", "com.compuserve.gif")});
    session.sort(FileOrder::asDropped);
    EXPECT_THAT(names(session), ElementsAre("10.jpg", "2.png", "new.gif"));
    session.removeAll();
    EXPECT_THAT(names(session), IsEmpty());
}

TEST(GoneFiles, AreThoseWithoutAnythingAtTheirPath) {
    const testing::TemporaryFolder folder;
    const auto path = [&folder](const char* name) { return FilePath(folder.path() / name); };
    std::ofstream(path("there.jpg").path()) << "x";
    std::filesystem::create_symlink("nowhere", path("dangling link").path());
    const std::vector<InputFile> files{{.url = path("gone.jpg")},
                                       {.url = path("there.jpg")},
                                       {.url = path("dangling link")},
                                       {.url = path("gone folder/a.jpg")}};
    EXPECT_THAT(goneFiles(files), ElementsAre(0, 3));
}

TEST(ToolSession, KnowsWhatKindOfToolItIs) {
    EXPECT_TRUE(sessionOf("pdf.merge").combines());
    EXPECT_TRUE(sessionOf("files.rename").renames());
    EXPECT_TRUE(sessionOf("image.resize").canReplaceOriginals());
    EXPECT_FALSE(sessionOf("pdf.split").canReplaceOriginals());
    ToolSession convert = sessionOf("image.convert");
    EXPECT_FALSE(convert.combines() || convert.renames());
}

TEST(ToolSession, SaysWhatIsMissingUntilItIsThere) {
    ToolSession lock = sessionOf("pdf.addPassword");
    EXPECT_EQ(lock.missing(), "Type a password (at least 4 characters)");
    lock.secrets.password = "äöü";
    EXPECT_FALSE(lock.missing().empty());
    lock.secrets.password = "äöüß";
    EXPECT_EQ(lock.missing(), "");

    ToolSession pages = sessionOf("pdf.deletePages");
    EXPECT_FALSE(pages.missing().empty());
    pages.change(Json{{"pageList", "2"}});
    EXPECT_EQ(pages.missing(), "");
    pages.change(Json{{"pages", Json::array()}});
    EXPECT_EQ(pages.missing(), "No pages would be left.");
    EXPECT_FALSE(sessionOf("pdf.sign").missing().empty());
    EXPECT_EQ(sessionOf("image.convert").missing(), "");
}

TEST(ToolSession, RefusesSettingsThatAreNone) {
    ToolSession session = sessionOf("image.resize");
    EXPECT_THROW(session.change(Json{{"maxPixelSize", -1}}), SettingError);
    EXPECT_THROW(session.change(Json{{"colour", "red"}}), SettingError);
    EXPECT_EQ(session.settings(), session.definition().defaults);
}

TEST(ToolSession, OrdersAJobAsItWasChosen) {
    ToolSession session = sessionOf("image.resize");
    session.add(std::vector{file("a.jpg", "public.jpeg")});
    session.save.mode = SavePreferences::Mode::replace;
    session.save.clashPolicy = ClashPolicy::skip;
    session.change(Json{{"maxPixelSize", 640}});
    const JobOrder order = session.order(today(), 3);
    EXPECT_EQ(order.configuration.location, SaveLocation(location::ReplaceOriginals{}));
    EXPECT_EQ(order.configuration.clashPolicy, ClashPolicy::skip);
    EXPECT_EQ(order.configuration.maxConcurrent, 3);
    EXPECT_EQ(order.settings.at("maxPixelSize"), 640);
    EXPECT_EQ(session.order(today(), 0).configuration.maxConcurrent, JobConfiguration::defaultConcurrency());
}

}  // namespace
}  // namespace tamble
