#pragma once

#include <TambleCore/Jobs/Isolation/WorkerPool.h>
#include <TambleCore/Jobs/ToolDefinition.h>
#include <TambleCore/Previews/PreviewPicture.h>
#include <TambleCore/Previews/PreviewResult.h>

#include <functional>
#include <memory>
#include <stop_token>
#include <vector>

namespace tamble {

/// The limits of a pool that makes previews: people wait for them, and photos, pages and results come in
/// turn.
WorkerLimits previewLimits();

/// Whether it is about a locked PDF that no password, or a wrong one, was given for.
bool asksForPassword(const Failure& failure);

/// What a window shows of files before anything is made of them, decoded by worker processes. Its functions
/// may be called from several threads at once, each takes a worker of its own. They throw Failure with a
/// sentence for people, and Cancelled after a stop request.
class Previewer {
  public:
    explicit Previewer(std::shared_ptr<WorkerPool> pool);

    /// The photo upright, its longest side at most `maxPixelSize` and never enlarged; of an animation or of
    /// several pages the first.
    PreviewPicture photo(const InputFile& file, int maxPixelSize, std::stop_token stop) const;

    /// All pages of a PDF, in their order; at least one.
    std::vector<PreviewPage> pages(const InputFile& file, const Secrets& secrets, std::stop_token stop) const;
    /// A page of a PDF on white, counted from 0, its longest side `pixelSize`.
    PreviewPicture page(const InputFile& file, int page, int pixelSize, const Secrets& secrets,
                        std::stop_token stop) const;
    /// Takes a page as soon as it is drawn, on the thread of the call.
    using PageTaker = std::function<void(int page, PreviewPicture picture)>;
    /// `count` pages from `first` on, in their order: the document is opened once for all. Those before one
    /// that fails are handed over. What the taker throws ends the work.
    void drawPages(const InputFile& file, int first, int count, int pixelSize, const Secrets& secrets,
                   const PageTaker& take, std::stop_token stop) const;

    /// The tool's own result for this one file, with the limits that a job has. Not for tools that give new
    /// names.
    PreviewResult result(const ToolDefinition& tool, const Json& settings, const Secrets& secrets,
                         const InputFile& file, std::stop_token stop) const;

  private:
    std::shared_ptr<WorkerPool> pool_;
    std::shared_ptr<PreviewPlaces> places_;
};

}  // namespace tamble
