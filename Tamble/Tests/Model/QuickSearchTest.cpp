#include <Tamble/Model/QuickSearch.h>
#include <Tamble/Model/ToolKeywords.h>

#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

std::vector<std::string> found(const QuickSearch& search, std::string_view query, std::size_t most = 12) {
    std::vector<std::string> ids;
    for (const ToolInfo* tool : search.find(query, most)) ids.push_back(tool->id);
    return ids;
}

std::vector<std::string> found(std::string_view query, std::size_t most = 12) {
    return found(QuickSearch(), query, most);
}

std::string german(std::string_view text) {
    static const std::map<std::string_view, std::string> texts{
        {"Resize", "Größe ändern"},
        {"Remove background", "Hintergrund entfernen"},
        {"Rename many files", "Viele Dateien umbenennen"},
        {"Only people with the password can open it", "Öffnen nur mit Passwort"}};
    const auto known = texts.find(text);
    return known == texts.end() ? std::string(text) : known->second;
}

TEST(QuickSearch, PutsWhatPeopleMeanFirst) {
    const std::map<std::string_view, std::string_view> wanted{
        {"shrink", "image.compress"},
        {"shrink pdf", "pdf.compress"},
        {"HEIC to JPG", "image.convert"},
        {"gps", "image.removeMetadata"},
        {"exif", "image.removeMetadata"},
        {"location", "image.removeMetadata"},
        {"sign pdf", "pdf.sign"},
        {"signature", "pdf.sign"},
        {"resize for email", "image.resize"},
        {"merge", "pdf.merge"},
        {"join my PDFs", "pdf.merge"},
        {"combine photos", "pdf.merge"},
        {"unlock", "pdf.removePassword"},
        {"lock", "pdf.addPassword"},
        {"password", "pdf.addPassword"},
        {"cut out", "image.removeBackground"},
        {"transparent", "image.removeBackground"},
        {"crop", "video.cropRotate"},
        {"mp3", "video.audio"},
        {"captions", "video.subtitles"},
        {"scan", "pdf.fromImages"},
        {"docx", "smart.summarize"},
        {"photo to pdf", "pdf.fromImages"},
        {"jpg to pdf", "pdf.fromImages"},
        {"pdf to jpg", "pdf.toImages"},
        {"turn", "image.rotate"},
        {"rotate pdf", "pdf.organize"},
        {"split", "pdf.split"},
        {"too big", "image.compress"},
        {"make smaller", "image.compress"},
        {"bulk rename", "files.rename"},
        {"renaming", "files.rename"},
        {"cropping a video", "video.cropRotate"},
        {"speech to text", "smart.transcribe"},
        {"noise", "audio.cleanup"},
        {"mute", "video.mute"},
        {"gif", "video.gif"},
        {"e-mail", "image.compress"},
        {"where was this photo taken", "image.removeMetadata"},
        {"pic", "image.convert"},
        {"re-size", "image.resize"},
        // While it is typed.
        {"conv", "image.convert"},
        {"com", "pdf.merge"},
        {"remove b", "image.removeBackground"},
        // Mistyped.
        {"comprss", "image.compress"},
        {"sgin", "pdf.sign"},
        {"rotaet", "image.rotate"},
        {"backgroud", "image.removeBackground"},
        {"trasnparnt", "image.removeBackground"},
        {"passwrod pfd", "pdf.addPassword"},
        {"convrt", "image.convert"},
        {"photo smaler for emial", "image.compress"},
        {"sumarise", "smart.summarize"},
        {"hiec", "image.convert"},
        // As letters are written elsewhere.
        {"ＰＤＦ spliT", "pdf.split"},
        {"rénàme", "files.rename"},
    };
    const QuickSearch search;
    for (const auto& [query, tool] : wanted) {
        ASSERT_THAT(found(search, query), Not(IsEmpty())) << query;
        EXPECT_EQ(found(search, query).front(), tool) << query;
    }
}

TEST(QuickSearch, TitlesGoBeforeKeywordsAndWhatRunsBeforeWhatDoesNot) {
    EXPECT_THAT(found("rotate"), ElementsAre("image.rotate", "pdf.organize", "video.cropRotate"));
    EXPECT_THAT(found("unlock pdf"), ElementsAre("pdf.removePassword"));
    // A better fit that cannot run here comes after all those that can.
    EXPECT_THAT(found("join"), ElementsAre("pdf.merge", "video.merge"));
    EXPECT_TRUE(QuickSearch::canRunHere(*ToolCatalog::withID("pdf.merge")));
    bool runs = true;
    for (const ToolInfo* tool : QuickSearch().find("s", 39)) {
        EXPECT_TRUE(runs || !QuickSearch::canRunHere(*tool)) << tool->id;
        runs = QuickSearch::canRunHere(*tool);
    }
    EXPECT_THAT(found("make smaller"), ElementsAre("image.compress", "pdf.compress", "video.compress"));
    EXPECT_EQ(found("s", 3).size(), 3U);
}

TEST(QuickSearch, AllWordsMustFitButThoseThatSayNothing) {
    EXPECT_THAT(found("rotate xylophone"), IsEmpty());
    EXPECT_EQ(found("how do I split my PDF"), found("split pdf"));
    EXPECT_THAT(found("to"), Contains("pdf.toImages")) << "alone it counts";
    for (const char* nothing : {"", "  ", "…?!", "\xFF\xFE"})
        EXPECT_THAT(found(nothing), IsEmpty()) << nothing;
    EXPECT_THAT(found("mic"), Not(Contains("image.rotate"))) << "three letters have no mistakes";
    EXPECT_THAT(found("crop"), Not(Contains("audio.record"))) << "the middle of a microphone";
    EXPECT_THAT(found("word"), Not(Contains("pdf.addPassword")));
    EXPECT_THAT(found("sign"), ElementsAre("pdf.sign")) << "a word that is known is no mistake of another";
    EXPECT_THAT(found(std::string(100'000, 'a')), IsEmpty());
}

TEST(QuickSearch, FindsWordsOfTheScreenAndEnglishOnes) {
    const QuickSearch search(german);
    for (const char* query : {"Größe", "groesse ändern", "GRÖSSE", "grosse", "größ", "resize"}) {
        EXPECT_THAT(found(search, query), Contains("image.resize")) << query;
    }
    EXPECT_EQ(found(search, "hintergund entfernen").at(0), "image.removeBackground");
    EXPECT_EQ(found(search, "viele umbennen").at(0), "files.rename");
    EXPECT_EQ(found(search, "passwort").at(0), "pdf.addPassword");
    EXPECT_EQ(found(search, "cut out"), found("cut out"));
}

TEST(QuickSearch, FindsEveryToolByItsTitleAndByOtherWords) {
    for (const ToolInfo& tool : ToolCatalog::all()) {
        EXPECT_THAT(found(tool.title, 39), Contains(tool.id));
        EXPECT_NE(toolKeywords(tool.kind), "") << tool.id;
    }
}

}  // namespace
}  // namespace tamble
