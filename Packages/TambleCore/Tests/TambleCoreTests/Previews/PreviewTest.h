#pragma once

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Previews/Previewer.h>

#include <TambleCoreTests/Images/Codec/TestPictures.h>
#include <TambleCoreTests/PDF/Pages/SmallPDF.h>
#include <TambleCoreTests/TestFolder.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {

/// A previewer with real workers, whose caches stand in the test's own folder.
class PreviewTest : public testing::Test {
  protected:
    /// A file below files(), as it comes from a drop.
    static InputFile input(const std::filesystem::path& path) {
        return {.url = path,
                .root = path.parent_path(),
                .byteSize = static_cast<std::int64_t>(std::filesystem::file_size(path)),
                .contentType = FileTypes::contentType(path)};
    }
    InputFile file(const std::string& name, const std::string& content) const {
        return input(folder_.write(name, content));
    }
    InputFile picture(const std::string& name, const vips::VImage& image) const {
        return input(pictures_.picture(name, image));
    }
    /// A document that takes the password to open it.
    InputFile locked(const InputFile& document, const std::string& password) const {
        const auto place = folder_.files() / "locked.pdf";
        const auto work =
            ToolCatalog::definition("pdf.addPassword")
                ->makeWork(ToolCatalog::definition("pdf.addPassword")->defaults, Secrets{password});
        std::get<std::unique_ptr<FileProcessor>>(work)->process(document, place, {});
        return input(place);
    }

    /// How it went: the code of the failure, "cancelled", or "done".
    template <typename Work>
    static std::string outcome(const Work& work) {
        try {
            work();
            return "done";
        } catch (const Failure& failure) {
            EXPECT_NE(failure.sentence(), "");
            return failure.code();
        } catch (const Cancelled&) {
            return "cancelled";
        }
    }

    /// The letters of the colours in the middle of the quarters, from left to right and top to bottom:
    /// red, green, blue, white.
    static std::string quarters(const PreviewPicture& picture) {
        std::string letters;
        for (const int y : {picture.height / 4, 3 * picture.height / 4}) {
            for (const int x : {picture.width / 4, 3 * picture.width / 4}) {
                const auto at = static_cast<std::size_t>(picture.channels * (y * picture.width + x));
                const bool red = picture.samples[at] > 127;
                const bool green = picture.samples[at + 1] > 127;
                const bool blue = picture.samples[at + 2] > 127;
                letters += red && green && blue ? 'W' : red ? 'R' : green ? 'G' : blue ? 'B' : '?';
            }
        }
        return letters;
    }
    static std::string size(const PreviewPicture& picture) {
        EXPECT_EQ(picture.samples.size(),
                  static_cast<std::size_t>(picture.width * picture.height * picture.channels));
        return fmt::format("{}x{}x{}", picture.width, picture.height, picture.channels);
    }
    /// What stands in the caches beside lock files and the staging folder itself.
    int outputsLeft() const {
        int count = 0;
        if (!std::filesystem::exists(folder_.staging())) return 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.staging())) {
            const auto name = entry.path().filename().native();
            if (!name.ends_with(".lock") && !name.starts_with("TambleStaging-")) ++count;
        }
        return count;
    }

    TestFolder folder_;
    test::PictureFolder pictures_;
    std::shared_ptr<WorkerPool> pool_ = std::make_shared<WorkerPool>(previewLimits());
    Previewer previewer_{pool_};
};

}  // namespace tamble
