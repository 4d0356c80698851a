#include <TambleCore/Images/ImageJobSettings.h>
#include <TambleCore/PDF/PDFJobSettings.h>

#include "PreviewTest.h"

namespace tamble {
namespace {

const ToolDefinition& tool(std::string_view id) {
    return *ToolCatalog::definition(id);
}

Json converting(ImageFormat format) {
    auto settings = ImageJobSettings::defaults(ImageTool::convert);
    settings.output = image_output::Convert{format};
    return encodeJson(settings);
}

TEST_F(PreviewTest, AResultIsTheToolsOwnAndGoesWithItsValue) {
    const auto photo = picture("beach.png", test::fourFields(320, 240));
    const auto before = snapshot(photo.root);
    std::filesystem::path place;
    {
        const auto result =
            previewer_.result(tool("image.convert"), converting(ImageFormat::jpeg), {}, photo, {});
        EXPECT_FALSE(result.skipped());
        EXPECT_EQ(result.name(), "beach.jpg");
        ASSERT_EQ(result.files().size(), 1U);
        const auto& output = result.files().front();
        place = output.url;
        EXPECT_EQ(result.byteSize(), static_cast<std::int64_t>(std::filesystem::file_size(place)));
        EXPECT_EQ(output.contentType, ContentType::forExtension("jpg"));
        EXPECT_EQ(std::filesystem::status(place.parent_path()).permissions(),
                  std::filesystem::perms::owner_all);
        EXPECT_EQ(quarters(previewer_.photo(output, 50, {})), "RGBW");
        // What a job makes of it, to the byte.
        const auto job = folder_.files() / "job.jpg";
        const auto work = tool("image.convert").makeWork(converting(ImageFormat::jpeg), {});
        std::get<std::unique_ptr<FileProcessor>>(work)->process(photo, job, {});
        EXPECT_EQ(contentOf(place), contentOf(job));
    }
    EXPECT_FALSE(std::filesystem::exists(place));
    EXPECT_EQ(outputsLeft(), 0);
    EXPECT_EQ(snapshot(photo.root), before);
}

TEST_F(PreviewTest, ResultsOutliveThePreviewerAndEachOther) {
    const auto photo = picture("a.png", test::fourFields(32, 24));
    auto previewer = std::make_optional<Previewer>(pool_);
    const auto make = [&] {
        return previewer->result(tool("image.convert"), converting(ImageFormat::webp), {}, photo, {});
    };
    auto first = std::make_optional(make());
    auto second = std::make_optional(make());
    const auto [one, other] = std::pair(first->files().front().url, second->files().front().url);
    first.reset();
    previewer.reset();
    EXPECT_FALSE(std::filesystem::exists(one));
    EXPECT_TRUE(std::filesystem::exists(other));
    second.reset();
    EXPECT_FALSE(std::filesystem::exists(other));
}

TEST_F(PreviewTest, WhatAToolLeavesAloneIsNoFailure) {
    const auto photo = picture("a.jpg[Q=20]", test::photograph(320, 240));
    auto settings = ImageJobSettings::defaults(ImageTool::convert);
    settings.output = image_output::Convert{ImageFormat::jpeg};
    settings.skipIfAlreadyInFormat = true;
    const auto same = previewer_.result(tool("image.convert"), encodeJson(settings), {}, photo, {});
    EXPECT_EQ(same.skipped(), SkipReason(skip::AlreadyInFormat{"JPEG"}));
    EXPECT_TRUE(same.files().empty());
    EXPECT_EQ(same.byteSize(), 0);

    settings = ImageJobSettings::defaults(ImageTool::compress);
    settings.quality = ImageJobSettings::Quality::best;
    const auto larger = previewer_.result(tool("image.compress"), encodeJson(settings), {}, photo, {});
    EXPECT_EQ(larger.skipped(), SkipReason(skip::NotSmaller{}));
    EXPECT_EQ(outputsLeft(), 0);
}

TEST_F(PreviewTest, AToolsFailuresComeWithItsSentences) {
    const auto& convert = tool("image.convert");
    try {
        previewer_.result(convert, converting(ImageFormat::webp), {}, file("a.jpg", "no picture"), {});
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), "unreadable");
        EXPECT_EQ(failure.sentence(), convert.unreadable.sentence());
    }
    const auto document = locked(file("a.pdf", test::pagesPDF({"", ""}, "")), "secret word");
    EXPECT_EQ(outcome([&] {
                  previewer_.result(tool("pdf.compress"), tool("pdf.compress").defaults, {}, document, {});
              }),
              "locked");
    EXPECT_EQ(outcome([&] {
                  previewer_.result(tool("files.rename"), tool("files.rename").defaults, {}, document, {});
              }),
              "unexpected");
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_EQ(outcome([&] {
                  previewer_.result(convert, converting(ImageFormat::webp), {},
                                    picture("b.png", test::fourFields(32, 24)), stopped.get_token());
              }),
              "cancelled");
    EXPECT_EQ(outputsLeft(), 0);
}

TEST_F(PreviewTest, FoldersOfPiecesAndPhotosBoundToPDFsAreResultsToo) {
    const auto document = file("book.pdf", test::pagesPDF(std::vector<std::string>(11), ""));
    const auto pieces = previewer_.result(tool("pdf.split"), tool("pdf.split").defaults, {}, document, {});
    EXPECT_EQ(pieces.name(), "book/");
    ASSERT_EQ(pieces.files().size(), 11U);
    std::vector<std::string> names;
    for (const auto& piece : pieces.files()) names.push_back(piece.url.filename().native());
    EXPECT_TRUE(std::ranges::is_sorted(names)) << names.front() << " … " << names.back();
    EXPECT_EQ(previewer_.pages(pieces.files().back(), {}, {}).size(), 1U);

    const auto bound = previewer_.result(tool("pdf.fromImages"), tool("pdf.fromImages").defaults, {},
                                         picture("a.png", test::fourFields(320, 240)), {});
    ASSERT_EQ(bound.files().size(), 1U);
    EXPECT_EQ(quarters(previewer_.page(bound.files().front(), 0, 320, {}, {})), "RGBW");
}

}  // namespace
}  // namespace tamble
