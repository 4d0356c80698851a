#include <TambleCore/Jobs/FileNames.h>
#include <TambleCore/Jobs/NameResolver.h>
#include <TambleCore/Jobs/OutputPlanner.h>
#include <TambleCore/Jobs/SavePreferences.h>
#include <TambleCore/Platform/StandardFolders.h>

#include <set>

namespace tamble {
namespace {

using std::filesystem::path;

/// The answers of the disk: which paths exist, by their exact names.
ExistsTest disk(std::set<std::string> names) {
    return
        [names = std::move(names)](const path& asked) { return names.contains(asked.filename().native()); };
}

std::string decided(const NameResolver::Decision& decision) {
    if (const auto* use = std::get_if<NameResolver::Use>(&decision)) return use->url.native();
    if (const auto* use = std::get_if<NameResolver::UseAfterTrashingExisting>(&decision)) {
        return "trash, " + use->url.native();
    }
    return "skip";
}

TEST(FileNames, CleansNames) {
    EXPECT_EQ(FileNames::safe("  .hidden:name "), "hidden-name");
    EXPECT_EQ(FileNames::safe("a/b\n"), "a-b");
    for (const char* nothing : {"", " . .. ", "...", " \t"}) EXPECT_EQ(FileNames::safe(nothing), "Untitled");
}

TEST(FileNames, NumbersBeforeTheExtension) {
    EXPECT_EQ(FileNames::numbered("beach.webp", 2), "beach 2.webp");
    EXPECT_EQ(FileNames::numbered("beach", 12), "beach 12");
    EXPECT_EQ(FileNames::numbered(".profile", 2), ".profile 2");
    EXPECT_EQ(FileNames::numbered("beach.pages/", 3), "beach.pages 3/");
    EXPECT_EQ(FileNames::joined("clip", "mp4"), "clip joined.mp4");
    EXPECT_EQ(FileNames::joined("", "mp4"), "Joined.mp4");
}

TEST(FileNames, LongNamesAreCutBetweenCharacters) {
    // Two bytes a letter: 250 bytes of stem and 5 of extension fill a name.
    std::string stem;
    for (int i = 0; i < 125; ++i) stem += "ä";
    EXPECT_EQ(FileNames::fitted(stem + ".webp").size(), 255U);
    const std::string numbered = FileNames::numbered(stem + ".webp", 2);
    EXPECT_EQ(numbered, stem.substr(0, 248) + " 2.webp");
    EXPECT_EQ(FileNames::numbered(stem + ".webp", 1000).size(), 254U) << "no half letters";
    // A family of four people is one character of 25 bytes.
    const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466";
    EXPECT_EQ(FileNames::suffixed(std::string(230, 'x') + family, "", "webp"),
              std::string(230, 'x') + ".webp");
    // Bytes that are no text are cut anywhere.
    EXPECT_EQ(FileNames::suffixed(std::string(300, '\xFF'), "", "png").size(), 255U);
    EXPECT_EQ(FileNames::fitted(std::string(300, 'f') + "/"), std::string(255, 'f') + "/");
    EXPECT_EQ(FileNames::numbered("a." + std::string(253, 'e'), 2).size(), 255U);
}

TEST(NameResolver, FollowsThePolicy) {
    const path target = "/out/photo.jpg";
    const auto taken = disk({"photo.jpg", "photo 2.jpg"});
    const auto resolve = [&](ClashPolicy policy) {
        return decided(NameResolver().resolve(target, policy, taken));
    };
    EXPECT_EQ(resolve(ClashPolicy::addNumber), "/out/photo 3.jpg");
    EXPECT_EQ(resolve(ClashPolicy::skip), "skip");
    EXPECT_EQ(resolve(ClashPolicy::replace), "trash, /out/photo.jpg");
    EXPECT_EQ(decided(NameResolver().resolve(target, ClashPolicy::skip, taken, path("/out/PHOTO.jpg"))),
              target.native())
        << "the replaced file is not in the way";
}

TEST(NameResolver, OneNameIsGivenOnce) {
    NameResolver names;
    const auto nothing = disk({});
    // Composed and decomposed, upper and lower case: one name.
    EXPECT_EQ(decided(names.resolve("/out/B\u00E4.PNG", ClashPolicy::replace, nothing)), "/out/B\u00E4.PNG");
    EXPECT_EQ(decided(names.resolve("/out/ba\u0308.png", ClashPolicy::replace, nothing)),
              "/out/ba\u0308 2.png");
    EXPECT_EQ(decided(names.resolve("/out/B\u00C4.png", ClashPolicy::skip, nothing)), "/out/B\u00C4 3.png");
    EXPECT_EQ(decided(names.resolve("/other/b\u00E4.png", ClashPolicy::skip, nothing)), "/other/b\u00E4.png");
}

TEST(NameResolver, ManyOutputsOfOneNameAreNumberedInLinearTime) {
    NameResolver names;
    int questions = 0;
    const ExistsTest counting = [&](const path& asked) {
        ++questions;
        return asked.filename() == "a.webp" || asked.filename() == "a 7.webp";
    };
    std::string last;
    for (int i = 0; i < 10'000; ++i)
        last = decided(names.resolve("/a.webp", ClashPolicy::addNumber, counting));
    EXPECT_EQ(last, "/a 10002.webp");
    EXPECT_LE(questions, 20'001) << "two questions for each";
}

TEST(OutputPlanner, PlacesByLocation) {
    const InputFile inside{.url = "/photos/Rome/a.png", .root = "/photos", .relativeFolder = "Rome"};
    const InputFile loose{.url = "/photos/a.png", .root = "/photos", .isLoose = true};
    InputFile intermediate = inside;
    intermediate.url = "/tmp/step1/x.png";
    intermediate.originalURL = inside.url;
    const OutputPlanner kept{location::Folder{.value = "/out", .keepStructure = true}};
    EXPECT_EQ(kept.intendedURL(inside, "a.webp"), "/out/photos/Rome/a.webp");
    EXPECT_EQ(kept.intendedURL(loose, "a.webp"), "/out/a.webp");
    EXPECT_EQ(kept.intendedURL(inside, "pages/").native(), "/out/photos/Rome/pages/");
    EXPECT_EQ(OutputPlanner{location::Folder{.value = "/out"}}.intendedURL(inside, "a.webp"), "/out/a.webp");
    for (const SaveLocation& beside :
         {SaveLocation(location::NextToOriginal{}), SaveLocation(location::ReplaceOriginals{})}) {
        EXPECT_EQ(OutputPlanner{beside}.intendedURL(intermediate, "a.webp"), "/photos/Rome/a.webp");
    }
}

TEST(SavePreferences, BecomeALocation) {
    using namespace std::chrono_literals;
    constexpr auto day = 2026y / 11 / 3;
    const auto loose = SavePreferences::forLooseFiles().saveLocation(day);
    EXPECT_EQ(std::get<location::Folder>(loose).value, folders::downloads() / "Tamble/2026-11-03");
    SavePreferences chosen{.mode = SavePreferences::Mode::oneFolder, .keepStructure = false};
    for (const char* folder : {"/out/Größe", "/out/\xFF"}) {
        chosen.setFolder(folder);
        const auto again = decodeJson<SavePreferences>(parseJson(writeJson(encodeJson(chosen))));
        EXPECT_EQ(std::get<location::Folder>(again.saveLocation(day)), (location::Folder{.value = folder}));
    }
    chosen.mode = SavePreferences::Mode::replace;
    EXPECT_EQ(chosen.saveLocation(day), SaveLocation(location::ReplaceOriginals{}));
}

}  // namespace
}  // namespace tamble
