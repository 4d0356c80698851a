#include <TambleCore/Jobs/FileNames.h>
#include <TambleCore/Jobs/Isolation/IsolatedWork.h>
#include <TambleCore/Jobs/WatchedInput.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Previews/PreviewFiles.h>
#include <TambleCore/Previews/PreviewTools.h>
#include <TambleCore/Previews/Previewer.h>

#include <algorithm>

namespace tamble {
namespace {

Failure unexpected(const std::string& cause) {
    return {"unexpected", "Something unexpected went wrong: " + cause};
}

/// Does the work; whatever it throws but a skip and a cancellation becomes a Failure.
template <typename Work>
auto failing(const std::stop_token& stop, const Work& work) {
    try {
        return work();
    } catch (const ProcessorSkip&) {
        throw;
    } catch (const Failure&) {
        throw;
    } catch (const Cancelled&) {
        if (stop.stop_requested()) throw;
        throw unexpected("it was cancelled by itself.");
    } catch (const std::exception& error) {
        throw unexpected(causeOf(error));
    }
}

int bounded(int pixelSize) {
    return std::clamp(pixelSize, 1, longestPreviewSide);
}

/// One call of a tool of ours.
struct Request {
    const ToolDefinition& tool;
    Json settings;
    Secrets secrets;
    const InputFile& file;
    const std::shared_ptr<WorkerPool>& pool;

    void perform(const std::filesystem::path& place, const WorkContext& context) const {
        const WatchedInput input(file, WatchedInput::Subject::thisFile);
        std::get<std::unique_ptr<FileProcessor>>(isolatedWork(tool, settings, secrets, pool))
            ->process(file, place, context);
    }
    /// What was read of a worker's answer, which is empty for nonsense.
    template <typename Value>
    Value trusted(std::optional<Value> value) const {
        if (value) return std::move(*value);
        throw Failure(tool.unreadable.code(), tool.unreadable.sentence(), "The preview is no picture.");
    }
};

/// The drawing program rounds sides in its own way.
constexpr int roundedUp = 1;

/// Hands on the pages that stand in a folder by now.
class PageDelivery {
  public:
    PageDelivery(const Request& request, const std::filesystem::path& folder, int first, int count,
                 int pixelSize, const Previewer::PageTaker& take)
        : request_(request),
          folder_(folder),
          next_(first),
          left_(count),
          pixelSize_(pixelSize),
          take_(take) {}

    /// None after one that was not taken.
    void deliver() {
        while (!isRefused_ && left_ > 0) {
            const auto place = folder_ / std::to_string(next_);
            if (!isThere(place)) return;
            isRefused_ = true;
            take_(next_, request_.trusted(PreviewFiles::readPicture(place, pixelSize_ + roundedUp)));
            isRefused_ = false;
            ++next_;
            --left_;
        }
    }
    bool isComplete() const noexcept { return left_ == 0; }

  private:
    const Request& request_;
    const std::filesystem::path& folder_;
    int next_;
    int left_;
    int pixelSize_;
    const Previewer::PageTaker& take_;
    bool isRefused_ = false;
};

/// What differs between tools that make one file of each and one of all.
struct OneFile {
    const InputFile& file;

    std::optional<SkipReason> skipReason(const FileProcessor& work) const { return work.skipReason(file); }
    std::optional<SkipReason> skipReason(const FileCombiner&) const { return std::nullopt; }
    std::string outputName(const FileProcessor& work) const { return work.outputName(file); }
    std::string outputName(const FileCombiner& work) const { return work.outputName({&file, 1}); }
    void perform(const FileProcessor& work, const std::filesystem::path& place,
                 const WorkContext& context) const {
        work.process(file, place, context);
    }
    void perform(const FileCombiner& work, const std::filesystem::path& place,
                 const WorkContext& context) const {
        work.combine({&file, 1}, place, context);
    }
};

/// Throws ProcessorSkip.
template <typename Work>
PreviewResult resultOf(const Work& work, const InputFile& file, PreviewPlaces& places,
                       const std::stop_token& stop) {
    const OneFile one{file};
    const WatchedInput input(file, WatchedInput::Subject::thisFile);
    if (auto reason = one.skipReason(work)) throw ProcessorSkip(std::move(*reason));
    const std::string name = FileNames::fitted(one.outputName(work));
    PreviewPlace place = places.make(name);
    std::optional<ItemNote> note;
    watching({&input, 1}, [&] {
        one.perform(work, place.path(),
                    {.progress = {}, .stop = stop, .note = [&note](ItemNote left) { note = left; }});
    });
    PreviewResult result(std::move(place), name, note);
    if (result.files().empty()) throw Failure("noOutput", "The tool made no file.");
    return result;
}

}  // namespace

WorkerLimits previewLimits() {
    // A photo's worker, which also serves its results, a page's, and one for what a PDF tool makes.
    return {.stopping = std::chrono::seconds(1), .idle = std::chrono::seconds(30), .spare = 3};
}

bool asksForPassword(const Failure& failure) {
    return failure.code() == caseName(PDFError::Case::locked) ||
           failure.code() == caseName(PDFError::Case::wrongPassword);
}

Previewer::Previewer(std::shared_ptr<WorkerPool> pool)
    : pool_(std::move(pool)), places_(std::make_shared<PreviewPlaces>()) {}

PreviewPicture Previewer::photo(const InputFile& file, int maxPixelSize, std::stop_token stop) const {
    return failing(stop, [&] {
        const int most = bounded(maxPixelSize);
        const Request request{photoPreviewTool(), encodeJson(PhotoPreviewSettings{most}), {}, file, pool_};
        const PreviewPlace place = places_->make("0.preview");
        request.perform(place.path(), {.progress = {}, .stop = stop});
        return request.trusted(PreviewFiles::readPicture(place.path(), most));
    });
}

std::vector<PreviewPage> Previewer::pages(const InputFile& file, const Secrets& secrets,
                                          std::stop_token stop) const {
    return failing(stop, [&] {
        const Request request{pageListTool(), encodeJson(PageListSettings{}), secrets, file, pool_};
        const PreviewPlace place = places_->make("0.preview");
        request.perform(place.path(), {.progress = {}, .stop = stop});
        return request.trusted(PreviewFiles::readPages(place.path()));
    });
}

PreviewPicture Previewer::page(const InputFile& file, int page, int pixelSize, const Secrets& secrets,
                               std::stop_token stop) const {
    PreviewPicture picture;
    drawPages(
        file, page, 1, pixelSize, secrets, [&](int, PreviewPicture drawn) { picture = std::move(drawn); },
        std::move(stop));
    return picture;
}

void Previewer::drawPages(const InputFile& file, int first, int count, int pixelSize, const Secrets& secrets,
                          const PageTaker& take, std::stop_token stop) const {
    failing(stop, [&] {
        const int most = bounded(pixelSize);
        const Request request{
            pagePreviewTool(),
            encodeJson(PagePreviewSettings{.first = first, .count = count, .pixelSize = most}), secrets, file,
            pool_};
        const PreviewPlace place = places_->make("0");
        PageDelivery delivery(request, place.path(), first, count, most, take);
        try {
            // A report may stand for several pages, and comes when all it stands for are there.
            request.perform(place.path(), {.progress = [&](double) { delivery.deliver(); }, .stop = stop});
        } catch (const Failure&) {
            delivery.deliver();
            throw;
        }
        delivery.deliver();
        if (!delivery.isComplete()) request.trusted(std::optional<PreviewPicture>());
    });
}

PreviewResult Previewer::result(const ToolDefinition& tool, const Json& settings, const Secrets& secrets,
                                const InputFile& file, std::stop_token stop) const {
    return failing(stop, [&]() -> PreviewResult {
        const ToolWork work = isolatedWork(tool, settings, secrets, pool_);
        try {
            if (const auto* each = std::get_if<std::unique_ptr<FileProcessor>>(&work))
                return resultOf(**each, file, *places_, stop);
            if (const auto* all = std::get_if<std::unique_ptr<FileCombiner>>(&work))
                return resultOf(**all, file, *places_, stop);
        } catch (const ProcessorSkip& skipped) {
            return PreviewResult(skipped.reason());
        }
        throw std::invalid_argument("this tool gives names.");
    });
}

}  // namespace tamble
